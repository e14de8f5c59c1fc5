#include "decode/frmLineInputMsg.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "decode/MeteoDecode.h"
#include "decode/TypedMessage.h"
#include "shell/QtPlatform.h"

namespace zg {
namespace {

// A report is seldom longer than a few lines of a circuit, which have 69 characters.
constexpr int Columns = 72;
constexpr int Rows = 12;

}  // namespace

frmLineInputMsg::frmLineInputMsg(Application& app, QWidget* parent)
    : Form(app, "frmLineInputMsg", parent) {
  auto* lblPrompt = new QLabel(this);
  lblPrompt->setObjectName(QStringLiteral("lblPrompt"));

  txtMsg_ = new QPlainTextEdit(this);
  txtMsg_->setObjectName(QStringLiteral("txtMsg"));
  txtMsg_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  txtMsg_->setTabChangesFocus(true);
  lblPrompt->setBuddy(txtMsg_);

  const auto button = [this](const char* name) {
    auto* made = new QPushButton(this);
    made->setObjectName(QLatin1String(name));
    return made;
  };
  cmdClear_ = button("cmdClear");
  cmdDecode_ = button("cmdDecode");
  cmdCancel_ = button("cmdCancel");
  cmdDecode_->setDefault(true);
  connect(cmdDecode_, &QPushButton::clicked, this, [this] { Decode(); });
  connect(cmdClear_, &QPushButton::clicked, this, [this] { Clear(); });
  connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
  // Enter begins a new line in the text.
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | key), this);
    connect(shortcut, &QShortcut::activated, cmdDecode_, [this] { cmdDecode_->click(); });
  }

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdClear_);
  buttons->addStretch();
  buttons->addWidget(cmdDecode_);
  buttons->addWidget(cmdCancel_);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(lblPrompt);
  layout->addWidget(txtMsg_, 1);
  layout->addLayout(buttons);
  // In the order of the text, then the buttons from left to right.
  setTabOrder(txtMsg_, cmdClear_);
  setTabOrder(cmdClear_, cmdDecode_);
  setTabOrder(cmdDecode_, cmdCancel_);

  TypedMessage last = LoadTypedMessage(app_.ApplicationPath);
  if (!last.Error.empty()) Tell(last.Error);
  txtMsg_->setPlainText(ToQString(last.Text));

  ReadLabels();
  const QFontMetrics metrics(txtMsg_->font());
  const QMargins margins = layout->contentsMargins();
  resize(metrics.horizontalAdvance(QLatin1Char('0')) * Columns + margins.left() + margins.right(),
         metrics.lineSpacing() * Rows + sizeHint().height() - txtMsg_->sizeHint().height());
}

void frmLineInputMsg::SetCaptions() {
  cmdDecode_->setText(ToQString(app_.Choose("&Decodifica", "&Decode")));
  cmdDecode_->setToolTip(
      QKeySequence(Qt::CTRL | Qt::Key_Return).toString(QKeySequence::NativeText));
  cmdClear_->setText(ToQString(app_.Choose("&Svuota", "&Clear")));
  cmdCancel_->setText(ToQString(app_.Choose("&Annulla", "C&ancel")));
}

void frmLineInputMsg::Decode() {
  const std::string text = txtMsg_->toPlainText().toStdString();
  app_.mLineInputMsg = NormaliseTypedMessage(text);
  Tell(SaveTypedMessage(app_.ApplicationPath, text));
  accept();
}

void frmLineInputMsg::Clear() {
  Tell(DeleteTypedMessage(app_.ApplicationPath));
  txtMsg_->clear();
  txtMsg_->setFocus();
}

// The message itself is decoded all the same.
void frmLineInputMsg::Tell(const std::string& error) {
  if (!error.empty()) app_.Messages.Show(Prompt::Icon::Critical, error);
}

}  // namespace zg
