// Names that come from a remote listing, made safe to use as names of local files.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zg {

// The name, if it is a plain file name that cannot lead out of a folder, hide in it or mean a
// device: 1 to 200 bytes, no "/", "\" or ":", no control character, no "." at its beginning, none
// of the reserved device names ("CON", "nul.txt"). Nothing otherwise.
std::optional<std::string> SafeName(std::string_view name);

}  // namespace zg
