#include "shell/BrowserAddress.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "shell/TestSupport.h"

namespace zg {
namespace {

namespace fs = std::filesystem;
using Kind = BrowserAddress::Kind;

struct AddressCase {
  const char* name;
  // "{}" stands for the application directory, with its "/".
  const char* address;
  Kind what;
  const char* target = "";
  const char* anchor = "";
};

void PrintTo(const AddressCase& testCase, std::ostream* out) { *out << testCase.name; }

const AddressCase AddressCases[] = {
    {"HelpPage", "{}ZGEngHelp.htm", Kind::Page, "{}ZGEngHelp.htm"},
    {"HelpPageRelative", "ZGEngHelp.htm", Kind::Page, "{}ZGEngHelp.htm"},
    {"HelpPageWithAnchor", "{}ZGEngHelp.htm#units", Kind::Page, "{}ZGEngHelp.htm", "units"},
    {"Blanks", "  ZGEngHelp.htm ", Kind::Page, "{}ZGEngHelp.htm"},
    {"PictureInFolder", "help/grid.PNG", Kind::Picture, "{}help/grid.PNG"},
    {"Backslash", "help\\grid.PNG", Kind::Picture, "{}help/grid.PNG"},
    {"Dots", "{}help/../ZGEngHelp.htm", Kind::Page, "{}ZGEngHelp.htm"},
    {"HashInPictureName", "help/no#1.bmp", Kind::Picture, "{}help/no#1.bmp"},
    {"MissingPage", "{}Nothing.html", Kind::Missing, "{}Nothing.html"},
    {"MissingPicture", "Nothing.jpg", Kind::Missing, "{}Nothing.jpg"},
    {"FolderNamedAsPage", "folder.htm", Kind::Missing, "{}folder.htm"},
    {"Settings", "{}zephyrgram.ini", Kind::Refused},
    {"Directory", "{}", Kind::Refused},
    {"Outside", "/etc/passwd", Kind::Refused},
    {"OutsidePicture", "/usr/share/picture.png", Kind::Refused},
    {"OutByDots", "help/../../picture.png", Kind::Refused},
    {"OutByLink", "link/picture.png", Kind::Refused},
    {"NeighbourWithSameBeginning", "{}../{name}2/picture.png", Kind::Refused},
    {"FileScheme", "file:/etc/passwd", Kind::Refused},
    {"Script", "javascript:alert(1)", Kind::Refused},
    {"Data", "data:text/html,x", Kind::Refused},
    {"Ftp", "ftp://example.org/a.png", Kind::Refused},
    {"Drive", "C:\\picture.png", Kind::Refused},
    {"ColonInName", "help/12:00Z.png", Kind::Missing, "{}help/12:00Z.png"},
    {"Empty", "", Kind::Refused},
    {"OnlyBlanks", "   ", Kind::Refused},
    {"Http", "http://example.org/a b", Kind::Refused},
    {"HttpPicture", "http://example.org/a.png", Kind::Web, "http://example.org/a.png"},
    {"HttpsQuery", "HTTPS://example.org/?a=b&c#d", Kind::Web, "HTTPS://example.org/?a=b&c#d"},
    {"HttpWithoutStrokes", "http:example.org", Kind::Refused},
    {"HttpWithoutHost", "http://", Kind::Refused},
    {"HttpPathOnly", "http:///etc/passwd", Kind::Refused},
    {"HttpLineBreak", "http://example.org/\r\nX", Kind::Refused},
    {"Www", "www.example.org", Kind::Web, "http://www.example.org"},
};

class BrowserAddresses : public ::testing::TestWithParam<AddressCase> {};

std::string Fill(std::string text, const std::string& folder) {
  const std::string name = fs::path(folder.substr(0, folder.size() - 1)).filename().string();
  const std::pair<std::string, std::string> marks[] = {{"{}", folder}, {"{name}", name}};
  for (const auto& [mark, value] : marks) {
    const std::size_t at = text.find(mark);
    if (at != std::string::npos) text.replace(at, mark.size(), value);
  }
  return text;
}

TEST_P(BrowserAddresses, AreClassified) {
  const AddressCase& testCase = GetParam();
  const test::TemporaryFolder folder;
  const test::TemporaryFolder outside;
  const std::string path = fs::canonical(folder.Path()).string() + "/";
  fs::create_directories(folder / "help");
  fs::create_directories(folder / "folder.htm");
  fs::create_directory_symlink(outside.Path(), folder / "link");
  for (const std::string& file :
       {folder / "ZGEngHelp.htm", folder / "help/grid.PNG", folder / "help/no#1.bmp",
        folder / "zephyrgram.ini", outside / "picture.png"}) {
    test::WriteTestFile(file, "x");
  }

  const BrowserAddress address = ClassifyAddress(Fill(testCase.address, path), path);
  EXPECT_EQ(address.What, testCase.what);
  EXPECT_EQ(address.Target, Fill(testCase.target, path));
  EXPECT_EQ(address.Anchor, testCase.anchor);
}

INSTANTIATE_TEST_SUITE_P(All, BrowserAddresses, ::testing::ValuesIn(AddressCases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(BrowserSizes, HelpPagesAreSmaller) {
  for (const char* page : {"/opt/zephyrgram/ZGItaHelp.htm", "ZGEngHelp.htm"}) {
    const BrowserSize size = SizeForAddress(page);
    EXPECT_EQ(size.WindowWidth, 600) << page;
    EXPECT_EQ(size.WindowHeight, 361) << page;
    EXPECT_EQ(size.ControlWidth, 593) << page;
    EXPECT_EQ(size.ControlHeight, 336) << page;
  }
  const BrowserSize other = SizeForAddress("http://example.org/world.png");
  EXPECT_EQ(other.WindowWidth, 733);
  EXPECT_EQ(other.WindowHeight, 500);
  EXPECT_EQ(other.ControlWidth, 726);
  EXPECT_EQ(other.ControlHeight, 476);
}

}  // namespace
}  // namespace zg
