// What the browser window may show, and how large it opens. Addresses come from settings that a
// user edits and from links of pages, so that only what is named here is ever opened.
#pragma once

#include <string>
#include <string_view>

namespace zg {

struct BrowserAddress {
  enum class Kind {
    Page,     // a help page of the application directory; Target is its path
    Picture,  // a picture of the application directory; Target is its path
    Web,      // a page of the network; Target is its address, with http:// or https://
    Missing,  // a page or picture of the application directory that is not there; Target its path
    Refused,  // anything else; Target is empty
  };
  Kind What = Kind::Refused;
  std::string Target;
  std::string Anchor;  // of a page: the place in it that is wanted, without "#"; often empty
};

// A page is .htm or .html, a picture .png, .jpg, .jpeg, .gif or .bmp, in any case. A relative path
// starts from the application directory (it ends in "/"); links of the file system that lead out of
// it are refused, as are other schemes, blanks and control characters in an address of the network,
// and one without a host. "www." in front stands for "http://www.".
BrowserAddress ClassifyAddress(std::string_view address, const std::string& applicationPath);

// Sizes in pixels at 96 dots an inch.
struct BrowserSize {
  int WindowWidth;
  int WindowHeight;
  int ControlWidth;
  int ControlHeight;
};

// Help pages have a smaller window than anything else.
BrowserSize SizeForAddress(std::string_view address) noexcept;

}  // namespace zg
