// A small browser: help pages and pictures of the application directory, told by the parameters
// "BrowserUrl" and "BrowserCaption". Pages of the network go to the browser of the system; anything
// else is refused (shell/BrowserAddress.h).
#pragma once

#include <QImage>
#include <QPixmap>
#include <QString>
#include <vector>

#include "shell/BrowserAddress.h"
#include "shell/QtForm.h"

class QPushButton;
class QTextBrowser;
class QUrl;

namespace zg {

class frmBrowser : public Form {
  Q_OBJECT

 public:
  // Reads the parameters and shows what they name.
  frmBrowser(Application& app, QWidget* parent);

  void SetCaptions() override;

 protected:
  // Its size follows from the address: none is remembered.
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  // A place in a page that was read, to come back to.
  struct Visit {
    QString Address;
    int Position = 0;  // of the vertical scroll bar
  };

  void BuildBody(const BrowserSize& size);

  void Navigate(const QString& address);  // shows nothing yet
  void Follow(const QString& link);
  void Back();
  QString WebAddress() const;
  void OpenInSystemBrowser();

  void ShowAddress();
  void ShowPage();
  void FitPicture();
  QString Explanation() const;
  QPixmap LoadPicture(const QUrl& name);

  QTextBrowser* browser_ = nullptr;
  QPushButton* cmdBack_ = nullptr;
  QPushButton* cmdSystemBrowser_ = nullptr;
  QPushButton* cmdClose_ = nullptr;
  QString address_;            // as it was asked for
  BrowserAddress classified_;  // what it turned out to be
  QImage picture_;             // as in its file; null while a page is shown
  QPixmap fitted_;             // the same as large as the window allows
  std::vector<Visit> visits_;
};

}  // namespace zg
