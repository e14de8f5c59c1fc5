#include "shell/frmBrowser.h"

#include <QDesktopServices>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>

#include "shell/LabelFile.h"
#include "ui/UiTest.h"

namespace zg {
namespace {

using test::Find;

class frmBrowserTest : public test::UiTest {
 protected:
  frmBrowserTest() : UiTest(false) {}

  std::unique_ptr<frmBrowser> Show(const std::string& url, std::string_view caption = "Caption") {
    App.Parameters.SetParameter("BrowserUrl", url);
    App.Parameters.SetParameter("BrowserCaption", caption);
    auto window = std::make_unique<frmBrowser>(App, nullptr);
    window->show();
    return window;
  }

  std::string InFolder(std::string_view name) const { return Folder.Path() + std::string(name); }

  void WritePicture(std::string_view name, QSize size) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    ASSERT_TRUE(picture.save(ToQString(InFolder(name))));
  }
};

QTextBrowser& Page(const QWidget& window) { return Find<QTextBrowser>(window, "Browser"); }

std::string Text(const QWidget& window) { return Page(window).toPlainText().toStdString(); }

// Of the picture that is shown, in pixels of the page.
QSize ShownSize(const QWidget& window) {
  const auto pixmap = Page(window)
                          .document()
                          ->resource(QTextDocument::ImageResource, QUrl("picture"))
                          .value<QPixmap>();
  return pixmap.size();
}

void ClickLink(QWidget& window, const char* link) {
  emit Page(window).anchorClicked(QUrl(QString::fromUtf8(link)));
}

TEST_F(frmBrowserTest, ShowsHelpPagesInTheirSize) {
  for (const char* page : {"ZGItaHelp.htm", "ZGEngHelp.htm"}) {
    SCOPED_TRACE(page);
    const auto window = Show(InFolder(page), "Zephyrgram Informations");
    EXPECT_EQ(window->windowTitle(), "Zephyrgram Informations");
    EXPECT_NE(Text(*window).find("Zephyrgram"), std::string::npos);
    EXPECT_EQ(window->width(), 600);
    EXPECT_GE(window->height(), 361);
    EXPECT_GE(Page(*window).width(), 593);
    EXPECT_GE(Page(*window).height(), 336);
    EXPECT_FALSE(Find<QPushButton>(*window, "cmdSystemBrowser").isVisible());
    EXPECT_EQ(Page(*window).horizontalScrollBar()->maximum(), 0);
  }
  EXPECT_TRUE(Messages.Boxes.empty());
}

TEST_F(frmBrowserTest, OtherAddressesHaveALargerWindow) {
  const auto window = Show("http://example.org/world.png");
  EXPECT_EQ(window->width(), 733);
  EXPECT_GE(window->height(), 500);
  EXPECT_GE(Page(*window).width(), 726);
  EXPECT_GE(Page(*window).height(), 476);
}

TEST_F(frmBrowserTest, AWindowLeftLargeOpensInItsOwnSizeAgain) {
  Show(InFolder("ZGEngHelp.htm"))->resize(1000, 700);
  EXPECT_EQ(Show(InFolder("ZGEngHelp.htm"))->width(), 600);
}

TEST_F(frmBrowserTest, PicturesFitTheWindow) {
  struct Row {
    const char* name;
    QSize size;
    bool scaled;
  };
  const Row rows[] = {{"wide.png", {3000, 600}, true},
                      {"high.bmp", {300, 2000}, true},
                      {"large.jpg", {1600, 1200}, true},
                      {"small.PNG", {80, 40}, false}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    WritePicture(row.name, row.size);
    const auto window = Show(InFolder(row.name));
    const QSize room = Page(*window).viewport()->size();
    const QSize shown = ShownSize(*window);
    ASSERT_FALSE(shown.isEmpty());
    EXPECT_LE(shown.width(), room.width());
    EXPECT_LE(shown.height(), room.height());
    EXPECT_EQ(shown == row.size, !row.scaled);
    EXPECT_NEAR(shown.width() * row.size.height(), shown.height() * row.size.width(),
                row.size.width() + row.size.height());
    EXPECT_EQ(Page(*window).verticalScrollBar()->maximum(), 0);
  }
}

TEST_F(frmBrowserTest, APictureFollowsTheSizeOfTheWindow) {
  WritePicture("large.png", {4000, 3000});
  const auto window = Show(InFolder("large.png"));
  const QSize first = ShownSize(*window);
  window->resize(window->width() / 2, window->height() / 2);
  const QSize second = ShownSize(*window);
  EXPECT_LT(second.width(), first.width());
  EXPECT_LT(second.height(), first.height());
}

TEST_F(frmBrowserTest, LinksOfAPageAndTheWayBack) {
  test::WriteTestFile(InFolder("one.htm"), "<p>First page</p><a href=\"help/two.htm\">on</a>");
  std::filesystem::create_directories(InFolder("help"));
  test::WriteTestFile(InFolder("help/two.htm"), "<p>Second page</p>");
  const auto window = Show(InFolder("one.htm"));
  auto& cmdBack = Find<QPushButton>(*window, "cmdBack");
  EXPECT_NE(Text(*window).find("First page"), std::string::npos);
  EXPECT_FALSE(cmdBack.isEnabled());

  ClickLink(*window, "help/two.htm");
  EXPECT_EQ(Text(*window), "Second page");
  EXPECT_TRUE(cmdBack.isEnabled());
  // From where the page lies.
  ClickLink(*window, "../one.htm");
  EXPECT_NE(Text(*window).find("First page"), std::string::npos);

  cmdBack.click();
  EXPECT_EQ(Text(*window), "Second page");
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  QTest::keyClick(&Page(*window), Qt::Key_Left, Qt::AltModifier);
  EXPECT_NE(Text(*window).find("First page"), std::string::npos);
  EXPECT_FALSE(cmdBack.isEnabled());
  QTest::keyClick(&Page(*window), Qt::Key_Left, Qt::AltModifier);
  EXPECT_NE(Text(*window).find("First page"), std::string::npos);
}

TEST_F(frmBrowserTest, AnchorsScrollAndBackReturns) {
  std::string page = "<p>top</p>";
  for (int line = 0; line < 300; ++line) page += "<p>line</p>";
  test::WriteTestFile(InFolder("long.htm"), page + "<p><a name=\"end\"></a>end</p>");
  const auto window = Show(InFolder("long.htm"));
  const QScrollBar& bar = *Page(*window).verticalScrollBar();
  Page(*window).verticalScrollBar()->setValue(120);
  ClickLink(*window, "#end");
  EXPECT_GT(bar.value(), 1000);
  Find<QPushButton>(*window, "cmdBack").click();
  EXPECT_EQ(bar.value(), 120);
}

// Whatever a page or a setting names, nothing outside is read.
TEST_F(frmBrowserTest, RefusesWhatItMayNotShow) {
  const test::TemporaryFolder outside;
  test::WriteTestFile(outside / "page.htm", "inside it");
  test::WriteTestFile(InFolder("one.htm"), "<p>First page</p>");
  const std::string addresses[] = {
      "file:/etc/passwd",
      "file:///etc/passwd",
      "/etc/passwd",
      "javascript:alert(1)",
      "ftp://example.org/x.png",
      outside / "page.htm",
      "file://" + (outside / "page.htm"),
      "zephyrgram.ini",
      "http://",
  };
  for (const std::string& address : addresses) {
    SCOPED_TRACE(address);
    const auto window = Show(address);
    EXPECT_NE(Text(*window).find("This address is not opened:"), std::string::npos);
    EXPECT_NE(Text(*window).find(address), std::string::npos);
    EXPECT_EQ(Text(*window).find("root:"), std::string::npos);
    EXPECT_EQ(Text(*window).find("inside it"), std::string::npos);
    EXPECT_FALSE(Find<QPushButton>(*window, "cmdSystemBrowser").isVisible());

    const auto page = Show(InFolder("one.htm"));
    ClickLink(*page, address.c_str());
    EXPECT_EQ(Text(*page).find("First page"), std::string::npos);
    EXPECT_EQ(Text(*page).find("root:"), std::string::npos);
    EXPECT_EQ(Text(*page).find("inside it"), std::string::npos);
  }
}

TEST_F(frmBrowserTest, AnAddressIsTextAndNoMarkup) {
  const auto window = Show("x:<b>bold</b><img src=\"y\">");
  EXPECT_NE(Text(*window).find("x:<b>bold</b><img src=\"y\">"), std::string::npos);
}

TEST_F(frmBrowserTest, PagesLoadPicturesOfTheFolderOnly) {
  const test::TemporaryFolder outside;
  WritePicture("inside.png", {40, 20});
  WritePicture("dense@2x.png", {40, 20});
  WritePicture("wide.png", {4000, 20});
  std::filesystem::copy_file(InFolder("inside.png"), outside / "outside.png");
  const std::string out = "file://" + (outside / "outside.png");
  test::WriteTestFile(InFolder("one.htm"),
                      "<img src=\"inside.png\"><img src=\"dense@2x.png\">"
                      "<img src=\"wide.png\"><img src=\"" +
                          out + "\">");
  const auto window = Show(InFolder("one.htm"));
  const auto size = [&window](const std::string& name) {
    return Page(*window)
        .document()
        ->resource(QTextDocument::ImageResource, QUrl(QString::fromStdString(name)))
        .value<QPixmap>()
        .size();
  };
  EXPECT_EQ(size("inside.png"), QSize(40, 20));
  EXPECT_EQ(size("dense@2x.png"), QSize(20, 10));
  EXPECT_LE(size("wide.png").width(), Page(*window).viewport()->width());
  EXPECT_GT(size("wide.png").width(), 400);
  for (const std::string& address : {out, std::string("http://example.org/a.png")}) {
    EXPECT_EQ(size(address), QSize(1, 1)) << address;  // in its place
  }
}

TEST_F(frmBrowserTest, FilesThatAreNotThereOrNoPictures) {
  test::WriteTestFile(InFolder("broken.png"), "no picture");
  struct Row {
    const char* name;
    const char* italian;
    const char* english;
  };
  const Row rows[] = {
      {"nothing.htm", "Questo file non esiste:", "There is no such file:"},
      {"broken.png", "Questa immagine non si può leggere:", "This picture cannot be read:"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    for (const std::uint8_t language : {std::uint8_t{0}, std::uint8_t{1}}) {
      App.Texts.SetLanguage(language);
      const auto window = Show(InFolder(row.name));
      EXPECT_NE(Text(*window).find(App.Choose(row.italian, row.english)), std::string::npos);
      EXPECT_NE(Text(*window).find(row.name), std::string::npos);
    }
  }
}

// Catches what would go to the system's browser: it comes out of a signal with a QUrl.
class SystemBrowser {
 public:
  SystemBrowser() { QDesktopServices::setUrlHandler("http", &catcher_, "anchorClicked"); }
  ~SystemBrowser() { QDesktopServices::unsetUrlHandler("http"); }
  std::vector<std::string> Opened() const {
    std::vector<std::string> urls;
    for (const QList<QVariant>& call : spy_)
      urls.push_back(call[0].toUrl().toString().toStdString());
    return urls;
  }

 private:
  QTextBrowser catcher_;
  QSignalSpy spy_{&catcher_, &QTextBrowser::anchorClicked};
};

TEST_F(frmBrowserTest, PagesOfTheNetworkGoToTheSystemsBrowser) {
  const SystemBrowser system;
  const std::string url = "http://example.org/map.png?a=1&b=2";
  const auto window = Show(url);
  EXPECT_NE(Text(*window).find(url), std::string::npos);
  auto& button = Find<QPushButton>(*window, "cmdSystemBrowser");
  EXPECT_TRUE(button.isVisible());
  EXPECT_TRUE(button.isDefault());
  EXPECT_TRUE(system.Opened().empty());
  button.click();
  EXPECT_EQ(system.Opened(), std::vector<std::string>(1, url));
  ClickLink(*window, url.c_str());
  EXPECT_EQ(system.Opened(), std::vector<std::string>(2, url));
}

// The link of a help page is shown first.
TEST_F(frmBrowserTest, ALinkOfAPageToTheNetworkIsShownFirst) {
  const SystemBrowser system;
  const auto window = Show(InFolder("ZGEngHelp.htm"));
  ClickLink(*window, "http://example.org/");
  EXPECT_TRUE(system.Opened().empty());
  EXPECT_TRUE(Find<QPushButton>(*window, "cmdSystemBrowser").isVisible());
}

// What a help page is made of.
struct HelpPage {
  QSet<QString> Anchors;
  QSet<QString> Links;
  QSet<QString> Pictures;
  QSet<QString> MenuPaths;  // in bold, "Input > Recent Files"
};

HelpPage ReadHelpPage(const QTextDocument& document) {
  HelpPage page;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const QTextCharFormat format = part.fragment().charFormat();
      for (const QString& anchor : format.anchorNames()) page.Anchors.insert(anchor);
      if (!format.anchorHref().isEmpty()) page.Links.insert(format.anchorHref());
      if (format.isImageFormat()) page.Pictures.insert(format.toImageFormat().name());
      const QString text = part.fragment().text();
      if (format.fontWeight() >= QFont::Bold && text.contains(" > ")) page.MenuPaths.insert(text);
    }
  }
  return page;
}

// Each link of the help pages leads somewhere, each picture is there, and menus are called as they
// are.
TEST_F(frmBrowserTest, HelpPagesAreWhole) {
  struct Row {
    const char* page;
    const char* labels;
  };
  for (const Row& row :
       {Row{"ZGItaHelp.htm", "frmMain.ita"}, Row{"ZGEngHelp.htm", "frmMain.eng"}}) {
    SCOPED_TRACE(row.page);
    const auto window = Show(InFolder(row.page));
    const QTextDocument& document = *Page(*window).document();
    const HelpPage page = ReadHelpPage(document);
    EXPECT_GE(page.Links.size(), 5);
    for (const QString& link : page.Links) {
      EXPECT_TRUE(link.startsWith('#') && page.Anchors.contains(link.mid(1))) << link.toStdString();
    }
    EXPECT_GE(page.Pictures.size(), 2);
    for (const QString& picture : page.Pictures) {
      const QSize size =
          document.resource(QTextDocument::ImageResource, QUrl(picture)).value<QPixmap>().size();
      EXPECT_GT(size.width(), 100) << picture.toStdString();
    }
    QSet<QString> menus;
    for (const auto& [name, caption] : ReadLabelFile(InFolder(row.labels)).Captions) {
      menus.insert(ToQString(caption).remove('&'));
    }
    EXPECT_GE(page.MenuPaths.size(), 5);
    for (const QString& path : page.MenuPaths) {
      for (const QString& menu : path.split(" > ")) {
        EXPECT_TRUE(menus.contains(menu)) << menu.toStdString();
      }
    }
  }
}

}  // namespace
}  // namespace zg
