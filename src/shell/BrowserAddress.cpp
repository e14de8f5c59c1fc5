#include "shell/BrowserAddress.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <system_error>

#include "text/TextRules.h"

namespace zg {
namespace {

namespace fs = std::filesystem;
using enum BrowserAddress::Kind;

// Window sizes are told in twips, 1440 to the inch.
constexpr int TwipsPerPixel = 1440 / 96;

constexpr BrowserSize FromTwips(int windowWidth, int windowHeight, int controlWidth,
                                int controlHeight) {
  return {windowWidth / TwipsPerPixel, windowHeight / TwipsPerPixel, controlWidth / TwipsPerPixel,
          controlHeight / TwipsPerPixel};
}

constexpr BrowserSize HelpSize = FromTwips(9000, 5415, 8895, 5050);
constexpr BrowserSize OtherSize = FromTwips(11000, 7500, 10895, 7150);

constexpr std::array<std::string_view, 2> HelpPages = {"ZGItaHelp", "ZGEngHelp"};

struct FileType {
  std::string_view Ending;
  BrowserAddress::Kind What;
};
constexpr std::array<FileType, 7> FileTypes = {{{".htm", Page},
                                                {".html", Page},
                                                {".png", Picture},
                                                {".jpg", Picture},
                                                {".jpeg", Picture},
                                                {".gif", Picture},
                                                {".bmp", Picture}}};

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (IsLetter(c)) c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

BrowserAddress::Kind KindOfFile(const fs::path& path) {
  const std::string ending = Lower(path.extension().string());
  const auto* const type = std::find_if(FileTypes.begin(), FileTypes.end(),
                                        [&](const FileType& row) { return row.Ending == ending; });
  return type == FileTypes.end() ? Refused : type->What;
}

// The scheme that an address begins with, in small letters; empty for a path. A drive, "C:", is
// taken for one too, and so is refused.
std::string Scheme(std::string_view address) {
  const std::size_t colon = address.find(':');
  if (colon == std::string_view::npos) return {};
  std::string scheme = Lower(address.substr(0, colon));
  const bool valid = std::all_of(scheme.begin(), scheme.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || IsDigit(c) || c == '+' || c == '-' || c == '.';
  });
  return valid ? scheme : std::string();
}

BrowserAddress ClassifyWeb(std::string address) {
  const std::size_t host = address.find("//") + 2;
  const bool plain = std::all_of(address.begin(), address.end(), [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte > ' ' && byte != 0x7F;
  });
  if (!plain || host >= address.size() || Holds("/?#:@", address[host])) return {};
  return {Web, std::move(address), {}};
}

// `path` lies below `folder`, both without links and dots.
bool LiesBelow(const fs::path& path, const fs::path& folder) {
  const auto [rest, unused] = std::mismatch(folder.begin(), folder.end(), path.begin(), path.end());
  return rest == folder.end();
}

BrowserAddress ClassifyFile(std::string_view address, const std::string& applicationPath) {
  BrowserAddress file;
  const std::size_t hash = address.rfind('#');
  if (hash != std::string_view::npos && KindOfFile(address.substr(0, hash)) == Page) {
    file.Anchor = address.substr(hash + 1);
    address = address.substr(0, hash);
  }
  std::string slashes(address);
  std::replace(slashes.begin(), slashes.end(), '\\', '/');

  std::error_code error;
  // Without its "/", which would be an empty name at the end of the path.
  const fs::path folder =
      fs::weakly_canonical(applicationPath.substr(0, applicationPath.size() - 1), error);
  if (error) return {};
  const fs::path path = fs::weakly_canonical(folder / slashes, error);
  if (error || !LiesBelow(path, folder)) return {};
  file.What = KindOfFile(path);
  if (file.What == Refused) return {};
  if (!fs::is_regular_file(path, error)) file.What = Missing;
  file.Target = path.string();
  return file;
}

}  // namespace

BrowserAddress ClassifyAddress(std::string_view address, const std::string& applicationPath) {
  address = Trim(address);
  if (address.empty()) return {};
  const std::string scheme = Scheme(address);
  if (scheme == "http" || scheme == "https") {
    // Behind the scheme there have to be the two strokes of a host.
    if (Mid(address, scheme.size() + 2, 2) != "//") return {};
    return ClassifyWeb(std::string(address));
  }
  if (!scheme.empty()) return {};
  if (Lower(address.substr(0, 4)) == "www.") return ClassifyWeb("http://" + std::string(address));
  return ClassifyFile(address, applicationPath);
}

BrowserSize SizeForAddress(std::string_view address) noexcept {
  const bool help = std::any_of(HelpPages.begin(), HelpPages.end(),
                                [=](std::string_view page) { return Holds(address, page); });
  return help ? HelpSize : OtherSize;
}

}  // namespace zg
