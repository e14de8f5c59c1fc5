#include "shell/frmInit.h"

#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QTimer>
#include <QVBoxLayout>

#include "shell/QtPlatform.h"
#include "shell/QtSplashPicture.h"
#include "views/frmCountryFilter.h"

namespace zg {
namespace {

constexpr int GraphMilliseconds = 600;
constexpr int InitMilliseconds = 500;
constexpr int AutoMilliseconds = 10000;

QLabel* AddLabel(QWidget* parent, const char* name) {
  auto* label = new QLabel(parent);
  label->setObjectName(QLatin1String(name));
  return label;
}

// On the picture, which is dark whatever the desktop is.
QLabel* AddPictureLabel(QWidget* parent, const char* name, const QColor& colour, double size,
                        QFont::Weight weight) {
  QLabel* label = AddLabel(parent, name);
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, colour);
  label->setPalette(palette);
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * size);
  font.setWeight(weight);
  label->setFont(font);
  return label;
}

bool IsModifier(int key) {
  switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
      return true;
    default:
      return false;
  }
}

}  // namespace

frmInit::frmInit(Application& app, frmCountryFilter& countryFilter, QWidget* parent)
    : Form(app, "frmInit", parent), countryFilter_(countryFilter) {
  setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
  BuildBody();
  timerGraph_ = AddTimer("TimerGraph", GraphMilliseconds, &frmInit::BlinkGraphics);
  tmrInit_ = AddTimer("tmrInit", InitMilliseconds, &frmInit::BlinkAction);
  tmrAuto_ = AddTimer("tmrAuto", AutoMilliseconds, &frmInit::LeaveAtLast);
  tmrAuto_->setSingleShot(true);
  ReadLabels();
  LogStart();
}

void frmInit::BuildBody() {
  const QFontMetrics metrics(font());
  const int line = metrics.height();

  auto* picture = new SplashPicture(this);
  picture->setObjectName(QStringLiteral("picGlobe"));
  picture->setMinimumSize(metrics.averageCharWidth() * 96, line * 20);
  QLabel* lblTitle = AddPictureLabel(picture, "lblTitle", Qt::white, 3.0, QFont::Bold);
  QLabel* lblSubtitle =
      AddPictureLabel(picture, "lblSubtitle", QColor(205, 226, 242), 1.15, QFont::Normal);
  // A lamp, as of a receiver at work. It keeps its place while it is off.
  lblGraphics_ = AddPictureLabel(picture, "lblGraphics", QColor(255, 196, 64), 1.0, QFont::Normal);
  QSizePolicy keeps = lblGraphics_->sizePolicy();
  keeps.setRetainSizeWhenHidden(true);
  lblGraphics_->setSizePolicy(keeps);
  QLabel* lblKinds =
      AddPictureLabel(picture, "lblKinds", QColor(205, 226, 242), 0.95, QFont::Normal);

  auto* kinds = new QHBoxLayout;
  kinds->setSpacing(line / 2);
  kinds->addWidget(lblGraphics_);
  kinds->addWidget(lblKinds);
  kinds->addStretch();
  auto* over = new QVBoxLayout(picture);
  over->setContentsMargins(2 * line, 3 * line / 2, 2 * line, 3 * line / 2);
  over->addWidget(lblTitle);
  over->addWidget(lblSubtitle);
  over->addStretch();
  over->addLayout(kinds);

  auto* frame1 = new QFrame(this);
  frame1->setObjectName(QStringLiteral("Frame1"));
  lblVersion_ = AddLabel(frame1, "lblVersion");
  QLabel* lblNotice = AddLabel(frame1, "lblNotice");
  lblAction_ = AddLabel(frame1, "lblAction");
  lblHint_ = AddLabel(frame1, "lblHint");
  lblHint_->setForegroundRole(QPalette::PlaceholderText);
  auto* rows = new QGridLayout(frame1);
  rows->setContentsMargins(2 * line, 3 * line / 4, 2 * line, 3 * line / 4);
  rows->setHorizontalSpacing(2 * line);
  rows->addWidget(lblVersion_, 0, 0);
  rows->addWidget(lblNotice, 0, 1, Qt::AlignRight);
  rows->addWidget(lblAction_, 1, 0);
  rows->addWidget(lblHint_, 1, 1, Qt::AlignRight);
  rows->setColumnStretch(0, 1);

  auto* body = new QVBoxLayout(this);
  body->setContentsMargins(0, 0, 0, 0);
  body->setSpacing(0);
  body->addWidget(picture, 1);
  body->addWidget(frame1);
  body->setSizeConstraint(QLayout::SetFixedSize);
}

QTimer* frmInit::AddTimer(const char* name, int milliseconds, void (frmInit::*tick)()) {
  auto* timer = new QTimer(this);
  timer->setObjectName(QLatin1String(name));
  timer->setInterval(milliseconds);
  connect(timer, &QTimer::timeout, this, tick);
  return timer;
}

void frmInit::LogStart() {
  app_.Log.Log("Zephyrgram: InitProgr");
  std::string filter = app_.Parameters.GetParameter("CountryFilter");
  if (filter.empty()) filter = app_.Choose("Tutte Selezionate", "All Country Selected");
  app_.Log.Log(std::string(app_.Choose("Filtro Nazioni: ", "Country Filter: ")) + filter);
}

void frmInit::SetCaptions() {
  // The caption of the main window is the title and the version.
  lblVersion_->setText(ToQString(app_.Caption.substr(ApplicationTitle.size())));
  lblGraphics_->setText(QStringLiteral("●"));
}

void frmInit::showEvent(QShowEvent* event) {
  for (QTimer* timer : {timerGraph_, tmrInit_, tmrAuto_}) timer->start();
  QDialog::showEvent(event);  // NOLINT: Form would remember a size
}

void frmInit::hideEvent(QHideEvent* event) {
  for (QTimer* timer : {timerGraph_, tmrInit_, tmrAuto_}) timer->stop();
  QDialog::hideEvent(event);  // NOLINT: the same
}

void frmInit::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
  reject();
}

void frmInit::keyPressEvent(QKeyEvent* event) {
  event->accept();
  if (!IsModifier(event->key())) reject();
}

void frmInit::BlinkGraphics() { lblGraphics_->setVisible(lblGraphics_->isHidden()); }

void frmInit::BlinkAction() {
  if (!loading_) return;
  lblAction_->setText(
      lblAction_->text().isEmpty()
          ? ToQString(app_.Choose("Attendere Caricamento Dati ...", "Wait for Loading Data ..."))
          : QString());
}

void frmInit::LeaveAtLast() { reject(); }

void frmInit::reject() {
  if (loading_) return;
  tmrAuto_->stop();
  loading_ = true;
  BlinkAction();
  lblHint_->clear();
  repaint();
  countryFilter_.FillCountryList();
  QDialog::reject();
}

}  // namespace zg
