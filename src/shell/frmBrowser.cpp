#include "shell/frmBrowser.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QImageReader>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>

#include "shell/FileText.h"
#include "shell/QtPlatform.h"

namespace zg {
namespace {

using enum BrowserAddress::Kind;

// The name under which the page of a picture has it.
constexpr QLatin1String PictureResource("picture");

// A text browser that asks whoever owns it for the pictures of a page, and tells it when the room
// for a page changes. Style sheets and the like it has none of. Where a page shall have nothing it
// gets something empty: for nothing at all Qt would look for a file by itself.
class PageView : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;

  std::function<QPixmap(const QUrl&)> Load;
  std::function<void()> Resized;

  QVariant loadResource(int type, const QUrl& name) override {
    if (type != QTextDocument::ImageResource) return QByteArray("");
    const QPixmap picture = Load ? Load(name) : QPixmap();
    return picture.isNull() ? Nothing() : picture;
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QTextBrowser::resizeEvent(event);
    if (Resized) Resized();
  }

 private:
  static QPixmap Nothing() {
    QPixmap pixel(1, 1);
    pixel.fill(Qt::transparent);
    return pixel;
  }
};

// A link as an address: of a file its path, with its anchor.
QString AddressOf(const QUrl& link) {
  if (!link.isLocalFile()) return link.toString(QUrl::FullyEncoded);
  return link.toLocalFile() + (link.hasFragment() ? QLatin1Char('#') + link.fragment() : QString());
}

QString Paragraph(std::string_view text) {
  return QStringLiteral("<p>") + ToQString(text).toHtmlEscaped() + QStringLiteral("</p>");
}

QString Emphasis(const QString& text) {
  return QStringLiteral("<p><b>") + text.toHtmlEscaped() + QStringLiteral("</b></p>");
}

// As large as the picture may be on `room`, never larger than it is. `density` is that of the
// screen; a picture of twice the density has half the size in pixels of the page.
QPixmap Fitted(const QImage& picture, QSizeF room, double density, double pictureDensity) {
  QSizeF size = QSizeF(picture.size()) / pictureDensity;
  if (size.width() > room.width() || size.height() > room.height()) {
    size.scale(room, Qt::KeepAspectRatio);
  }
  const QSize pixels = (size * density).toSize().expandedTo(QSize(1, 1));
  QPixmap pixmap =
      QPixmap::fromImage(picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  pixmap.setDevicePixelRatio(density);
  return pixmap;
}

QImage ReadPicture(const QString& path) {
  QImageReader reader(path);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  return reader.read();
}

// Height has no bound on a page.
constexpr double Endless = 1e6;

}  // namespace

frmBrowser::frmBrowser(Application& app, QWidget* parent) : Form(app, "frmBrowser", parent) {
  const std::string url = app_.Parameters.GetParameter("BrowserUrl");
  const QString caption = ToQString(app_.Parameters.GetParameter("BrowserCaption"));
  BuildBody(SizeForAddress(url));
  setWindowTitle(caption);
  browser_->setAccessibleName(caption);
  Navigate(ToQString(url));
  ReadLabels();
}

void frmBrowser::BuildBody(const BrowserSize& size) {
  auto* view = new PageView(this);
  view->setObjectName(QStringLiteral("Browser"));
  view->setOpenLinks(false);
  view->setFrameShape(QFrame::NoFrame);
  view->Load = [this](const QUrl& name) { return LoadPicture(name); };
  view->Resized = [this] { FitPicture(); };
  connect(view, &QTextBrowser::anchorClicked, this,
          [this](const QUrl& link) { Follow(AddressOf(link)); });
  browser_ = view;

  const auto button = [this](const char* name, auto act) {
    auto* made = new QPushButton(this);
    made->setObjectName(QLatin1String(name));
    connect(made, &QPushButton::clicked, this, act);
    return made;
  };
  cmdBack_ = button("cmdBack", [this] { Back(); });
  cmdSystemBrowser_ = button("cmdSystemBrowser", [this] { OpenInSystemBrowser(); });
  cmdClose_ = button("cmdClose", [this] { reject(); });
  auto* back = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_Left), this);
  connect(back, &QShortcut::activated, this, [this] { Back(); });

  auto* buttons = new QHBoxLayout;
  buttons->setContentsMargins(6, 6, 6, 6);
  buttons->setSpacing(6);
  buttons->addWidget(cmdBack_);
  buttons->addStretch();
  buttons->addWidget(cmdSystemBrowser_);
  buttons->addWidget(cmdClose_);
  auto* body = new QVBoxLayout(this);
  body->setContentsMargins(0, 0, 0, 0);
  body->setSpacing(0);
  body->addWidget(browser_, 1);
  body->addLayout(buttons);

  // The row of buttons comes on top of what the page gets.
  resize(size.WindowWidth,
         std::max(size.WindowHeight, size.ControlHeight + buttons->sizeHint().height()));
  browser_->setFocus();
}

void frmBrowser::SetCaptions() {
  cmdBack_->setText(ToQString(app_.Choose("&Indietro", "&Back")));
  cmdBack_->setToolTip(ToQString(app_.Choose("Alt+Freccia sinistra", "Alt+Left")));
  cmdSystemBrowser_->setText(
      ToQString(app_.Choose("Apri nel &Browser di Sistema", "Open in the &System's Browser")));
  cmdClose_->setText(ToQString(app_.Choose("&Chiudi", "&Close")));
  ShowAddress();
}

void frmBrowser::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);  // NOLINT: Form would remember a size
}

void frmBrowser::hideEvent(QHideEvent* event) {
  QDialog::hideEvent(event);  // NOLINT: the same
}

// --- Going from page to page -----------------------------------------------------------------

void frmBrowser::Navigate(const QString& address) {
  address_ = address.trimmed();
  const QUrl url(address_);
  const QString path = url.isLocalFile() ? AddressOf(url) : address_;
  classified_ = ClassifyAddress(path.toStdString(), app_.ApplicationPath);
}

// A link is meant from the page that it stands on. The link of a page of the network that is shown
// here by its address only opens it where it can be read.
void frmBrowser::Follow(const QString& link) {
  QString address = link;
  if (classified_.What == Web && link == WebAddress()) {
    OpenInSystemBrowser();
    return;
  }
  if (classified_.What == Page && QUrl(link).isRelative()) {
    const QString page = ToQString(classified_.Target);
    address =
        link.startsWith(QLatin1Char('#')) ? page + link : QFileInfo(page).dir().filePath(link);
  }
  visits_.push_back({address_, browser_->verticalScrollBar()->value()});
  Navigate(address);
  ShowAddress();
}

void frmBrowser::Back() {
  if (visits_.empty()) return;
  const Visit visit = visits_.back();
  visits_.pop_back();
  Navigate(visit.Address);
  ShowAddress();
  browser_->verticalScrollBar()->setValue(visit.Position);
}

QString frmBrowser::WebAddress() const {
  return QUrl(ToQString(classified_.Target)).toString(QUrl::FullyEncoded);
}

void frmBrowser::OpenInSystemBrowser() {
  if (classified_.What != Web || QDesktopServices::openUrl(QUrl(WebAddress()))) return;
  app_.Messages.Show(Prompt::Icon::Critical,
                     app_.Choose("Impossibile aprire il browser di sistema.",
                                 "The system's browser cannot be opened."));
}

// --- Pages -----------------------------------------------------------------------------------

void frmBrowser::ShowAddress() {
  picture_ = classified_.What == Picture ? ReadPicture(ToQString(classified_.Target)) : QImage();
  const bool web = classified_.What == Web;
  cmdSystemBrowser_->setVisible(web);
  (web ? cmdSystemBrowser_ : cmdClose_)->setDefault(true);
  cmdBack_->setEnabled(!visits_.empty());
  // A picture fits, so that it needs none.
  const auto bars = picture_.isNull() ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
  browser_->setHorizontalScrollBarPolicy(bars);
  browser_->setVerticalScrollBarPolicy(bars);
  if (!picture_.isNull()) {
    FitPicture();
    return;
  }
  browser_->document()->setDocumentMargin(fontMetrics().height());
  if (classified_.What == Page) {
    ShowPage();
  } else {
    browser_->setHtml(Explanation());
  }
}

void frmBrowser::ShowPage() {
  const FileBytes page = ReadFileBytes(classified_.Target);
  if (!page.Ok()) {
    browser_->setHtml(Paragraph(page.Error));
    return;
  }
  browser_->setHtml(ToQString(page.Bytes));
  if (!classified_.Anchor.empty()) browser_->scrollToAnchor(ToQString(classified_.Anchor));
}

// What stands in place of a page that is not shown.
QString frmBrowser::Explanation() const {
  switch (classified_.What) {
    case Web: {
      const QString address = WebAddress().toHtmlEscaped();
      return Paragraph(app_.Choose(
                 "Questa finestra mostra la guida e le immagini che si trovano accanto al "
                 "programma. Le pagine della rete si aprono nel browser di sistema:",
                 "This window shows the help pages and the pictures that lie beside the program. "
                 "Pages of the network open in the system's browser:")) +
             QStringLiteral("<p><a href=\"%1\">%1</a></p>").arg(address);
    }
    case Missing:
      return Paragraph(app_.Choose("Questo file non esiste:", "There is no such file:")) +
             Emphasis(ToQString(classified_.Target));
    case Picture:
      return Paragraph(app_.Choose("Questa immagine non si può leggere:",
                                   "This picture cannot be read:")) +
             Emphasis(ToQString(classified_.Target));
    case Page:
    case Refused:
      break;
  }
  return Paragraph(
             app_.Choose("Questo indirizzo non viene aperto:", "This address is not opened:")) +
         Emphasis(address_) +
         Paragraph(app_.Choose(
             "Si aprono gli indirizzi http:// e https:// e, nella cartella del programma, pagine "
             "(htm, html) e immagini (png, jpg, gif, bmp).",
             "What is opened are http:// and https:// addresses and, in the folder of the program, "
             "pages (htm, html) and pictures (png, jpg, gif, bmp)."));
}

// A picture on a page. Its name may end in "@2x" in front of the dot: then it has twice the
// density.
QPixmap frmBrowser::LoadPicture(const QUrl& name) {
  if (name.toString() == PictureResource) return fitted_;
  const QDir folder = QFileInfo(ToQString(classified_.Target)).dir();
  const std::string path = folder.filePath(AddressOf(name)).toStdString();
  const BrowserAddress address = ClassifyAddress(path, app_.ApplicationPath);
  if (address.What != Picture) return {};
  const QImage picture = ReadPicture(ToQString(address.Target));
  if (picture.isNull()) return {};
  const double margins = 2 * browser_->document()->documentMargin();
  // A scroll bar may come.
  const double room =
      browser_->viewport()->width() - margins - browser_->verticalScrollBar()->sizeHint().width();
  const bool dense =
      QFileInfo(ToQString(address.Target)).completeBaseName().endsWith(QLatin1String("@2x"));
  return Fitted(picture, {std::max(room, 100.0), Endless}, devicePixelRatioF(), dense ? 2 : 1);
}

void frmBrowser::FitPicture() {
  if (picture_.isNull()) return;
  browser_->document()->setDocumentMargin(0);
  // Below a picture on a line there is room for the feet of letters.
  const QSizeF room(browser_->viewport()->width(),
                    browser_->viewport()->height() - browser_->fontMetrics().height());
  fitted_ = Fitted(picture_, room.expandedTo({1, 1}), devicePixelRatioF(), 1);
  browser_->setHtml(
      QStringLiteral("<div align=\"center\"><img src=\"%1\"></div>").arg(PictureResource));
}

}  // namespace zg
