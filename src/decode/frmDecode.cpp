#include "decode/frmDecode.h"

#include <QAbstractListModel>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "decode/DecodeLists.h"
#include "decode/MessageFilters.h"
#include "shell/ApplicationDecoder.h"
#include "shell/QtPlatform.h"

namespace zg {

// Shows a LineList as it was at the last Refresh.
class LineListModel : public QAbstractListModel {
 public:
  explicit LineListModel(LineList& lines) : lines_(lines) {}

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : shown_;
  }

  QVariant data(const QModelIndex& index, int role) const override {
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) return {};
    return ToQString(lines_.At(static_cast<std::size_t>(index.row())));
  }

  void Refresh() {
    const auto same = static_cast<int>(lines_.Settle());
    if (same < shown_) {
      beginRemoveRows({}, same, shown_ - 1);
      shown_ = same;
      endRemoveRows();
    }
    const auto all = static_cast<int>(lines_.Count());
    if (all > shown_) {
      beginInsertRows({}, shown_, all - 1);
      shown_ = all;
      endInsertRows();
    }
  }

 private:
  LineList& lines_;
  int shown_ = 0;
};

namespace {

// Room for the names of most stations in their list.
constexpr int Columns = 96;

// A text from a bulletin or the station table: it is cut to the room that there is, and its changes
// leave the layout of the window alone.
class ValueLabel : public QLabel {
 public:
  explicit ValueLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const QRect room = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
    style()->drawItemText(&painter, room, static_cast<int>(alignment()), palette(), isEnabled(),
                          shown, foregroundRole());
  }
};

// What the labels of the last message show.
struct MessageValue {
  const char* Label;
  std::string DecodeLists::*Text;
};

constexpr std::array<MessageValue, 8> MessageValues = {{
    {"lblType", &DecodeLists::Type},
    {"lblDay", &DecodeLists::Day},
    {"lblTime", &DecodeLists::Time},
    {"lblMsgId", &DecodeLists::MsgId},
    {"lblSender", &DecodeLists::Sender},
    {"lblSenderCity", &DecodeLists::SenderCity},
    {"lblCountry", &DecodeLists::Country},
    {"lblWMO", &DecodeLists::Station},
}};

void RefreshList(QListView& view, LineListModel& model) {
  const QScrollBar& bar = *view.verticalScrollBar();
  const bool atEnd = bar.value() == bar.maximum();
  model.Refresh();
  if (atEnd) view.scrollToBottom();  // who has scrolled back wants to read
}

}  // namespace

// The window's part in the progress of a run.
class frmDecode::RunProgress : public WindowProgress {
 public:
  explicit RunProgress(frmDecode& form)
      : WindowProgress(*form.prgFile_, form.app_.Time), form_(form) {}

  void Begin(std::int64_t maximum) override {
    WindowProgress::Begin(maximum);
    form_.BeginReading();
  }

  void Show() override {
    WindowProgress::Show();
    form_.ShowRun(Position(), Maximum());
  }

 private:
  frmDecode& form_;
};

// --- Building --------------------------------------------------------------------------------

frmDecode::frmDecode(Application& app, QWidget* parent)
    : Form(app, "frmDecode", parent),
      lists_(std::make_unique<DecodeLists>()),
      countries_(std::make_unique<LineListModel>(lists_->Countries)),
      stations_(std::make_unique<LineListModel>(lists_->Stations)) {
  auto* lists = new QHBoxLayout;
  lists->addWidget(BuildCountries(), 2);
  lists->addWidget(BuildStations(), 3);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(BuildFile());
  layout->addWidget(BuildProgress());
  layout->addLayout(lists, 1);
  layout->addWidget(BuildLastMessage());
  progress_ = std::make_unique<RunProgress>(*this);
  cmdCancel_->setFocus();
  ReadLabels();
  resize(std::max(sizeHint().width(), fontMetrics().averageCharWidth() * Columns),
         sizeHint().height());
}

frmDecode::~frmDecode() = default;

QLabel* frmDecode::AddCaption(const char* name, QWidget* buddy) {
  auto* label = new QLabel(this);
  label->setObjectName(QLatin1String(name));
  label->setBuddy(buddy);
  return label;
}

QLabel* frmDecode::AddValue(const char* name) {
  auto* label = new ValueLabel(this);
  label->setObjectName(QLatin1String(name));
  return label;
}

QLineEdit* frmDecode::AddField(const char* name) {
  auto* field = new QLineEdit(this);
  field->setObjectName(QLatin1String(name));
  field->setReadOnly(true);
  return field;
}

QWidget* frmDecode::BuildFile() {
  txtFile_ = AddField("txtFile");
  txtCountryFilter_ = AddField("txtCountryFilter");
  txtQuadrantFilter_ = AddField("txtQuadrantFilter");
  txtStationFilter_ = AddField("txtStationFilter");
  // Of the two short ones all can always be read.
  const std::string longest = StationFilterText(7) + "MM";
  for (QLineEdit* mask : {txtQuadrantFilter_, txtStationFilter_}) {
    mask->setMinimumWidth(fontMetrics().horizontalAdvance(ToQString(longest)));
  }
  auto* group = new QGroupBox(this);
  group->setObjectName(QStringLiteral("fraFile"));
  auto* grid = new QGridLayout(group);
  grid->addWidget(AddCaption("lblFile", txtFile_), 0, 0);
  grid->addWidget(txtFile_, 0, 1, 1, 3);
  grid->addWidget(AddCaption("lblCountryFilter", txtCountryFilter_), 1, 0);
  grid->addWidget(txtCountryFilter_, 1, 1, 1, 3);
  grid->addWidget(AddCaption("lblQuadrantFilter", txtQuadrantFilter_), 2, 0);
  grid->addWidget(txtQuadrantFilter_, 2, 1);
  grid->addWidget(AddCaption("lblStationFilter", txtStationFilter_), 2, 2);
  grid->addWidget(txtStationFilter_, 2, 3);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  return group;
}

QWidget* frmDecode::BuildProgress() {
  prgFile_ = new QProgressBar(this);
  prgFile_->setObjectName(QStringLiteral("prgFile"));
  prgFile_->setTextVisible(false);
  lblBytes_ = AddValue("lblBytes");
  lblPercent_ = AddValue("lblPercent");
  lblPercent_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  cmdCancel_ = new QPushButton(this);
  cmdCancel_->setObjectName(QStringLiteral("cmdCancel"));
  cmdCancel_->setDefault(true);
  connect(cmdCancel_, &QPushButton::clicked, this, [this] { Stop(); });

  auto* group = new QGroupBox(this);
  group->setObjectName(QStringLiteral("fraProgress"));
  auto* grid = new QGridLayout(group);
  grid->addWidget(prgFile_, 0, 0, 1, 3);
  grid->addWidget(cmdCancel_, 0, 3);
  grid->addWidget(AddCaption("lblBytesCaption"), 1, 0);
  grid->addWidget(lblBytes_, 1, 1);
  grid->addWidget(lblPercent_, 1, 2);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(2, 1);
  return group;
}

QListView* frmDecode::BuildList(const char* name, LineListModel& model) {
  auto* list = new QListView(this);
  list->setObjectName(QLatin1String(name));
  list->setModel(&model);
  list->setUniformItemSizes(true);
  list->setEditTriggers(QAbstractItemView::NoEditTriggers);
  return list;
}

QWidget* frmDecode::BuildCountries() {
  lstCountry_ = BuildList("lstCountry", *countries_);
  lblCountryNum_ = AddValue("lblCountryNum");
  auto* group = new QGroupBox(this);
  group->setObjectName(QStringLiteral("fraCountry"));
  auto* grid = new QGridLayout(group);
  grid->addWidget(lstCountry_, 0, 0, 1, 2);
  grid->addWidget(AddCaption("lblCountryNumCaption"), 1, 0);
  grid->addWidget(lblCountryNum_, 1, 1);
  grid->setColumnStretch(1, 1);
  return group;
}

QWidget* frmDecode::BuildStations() {
  lstWMO_ = BuildList("lstWMO", *stations_);
  lblStationNum_ = AddValue("lblStationNum");
  lblMsgNum_ = AddValue("lblMsgNum");
  auto* group = new QGroupBox(this);
  group->setObjectName(QStringLiteral("fraStation"));
  auto* grid = new QGridLayout(group);
  grid->addWidget(lstWMO_, 0, 0, 1, 4);
  grid->addWidget(AddCaption("lblStationNumCaption"), 1, 0);
  grid->addWidget(lblStationNum_, 1, 1);
  grid->addWidget(AddCaption("lblMsgNumCaption"), 1, 2);
  grid->addWidget(lblMsgNum_, 1, 3);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  return group;
}

// Four rows of two: the heading to the left, who has sent and who has reported to the right.
QWidget* frmDecode::BuildLastMessage() {
  constexpr int Rows = 4;
  auto* group = new QGroupBox(this);
  group->setObjectName(QStringLiteral("fraLast"));
  auto* grid = new QGridLayout(group);
  for (std::size_t i = 0; i < MessageValues.size(); ++i) {
    const std::string name = MessageValues[i].Label;
    const int row = static_cast<int>(i) % Rows;
    const int column = static_cast<int>(i) / Rows * 2;
    lastMessage_[i] = AddValue(name.c_str());
    grid->addWidget(AddCaption((name + "Caption").c_str()), row, column);
    grid->addWidget(lastMessage_[i], row, column + 1);
  }
  grid->setColumnStretch(1, 2);
  grid->setColumnStretch(3, 3);
  return group;
}

void frmDecode::SetCaptions() {
  cmdCancel_->setText(QStringLiteral("Stop"));
  txtCountryFilter_->setPlaceholderText(ToQString(app_.Choose("Tutte", "All")));
  for (QLineEdit* mask : {txtQuadrantFilter_, txtStationFilter_}) {
    mask->setPlaceholderText(ToQString(app_.Choose("Nessuno", "None")));
  }
  prgFile_->setAccessibleName(ToQString(app_.Choose("Avanzamento", "Progress")));
  lstCountry_->setAccessibleName(ToQString(app_.Choose("Nazioni", "Countries")));
  lstWMO_->setAccessibleName(ToQString(app_.Choose("Stazioni", "Stations")));
}

// --- Running ---------------------------------------------------------------------------------

void frmDecode::Run() {
  if (running_) return;
  running_ = true;
  stopWanted_ = false;
  emit RunStarted();
  // A name of its own: events are handled while it is in use.
  const std::string fileName = app_.mFileName;
  ShowFilters();
  txtFile_->setText(ToQString(FileNameOfPath(fileName)));
  for (QLineEdit* field : {txtFile_, txtCountryFilter_, txtQuadrantFilter_, txtStationFilter_}) {
    field->home(false);
  }
  lists_->Clear();
  prgFile_->setRange(0, 1);
  prgFile_->reset();
  ShowRun(0, 0);
  setWindowState(app_.mSchedulingStarted ? windowState() | Qt::WindowMinimized
                                         : windowState() & ~Qt::WindowMinimized);
  show();
  if (parentWidget() != nullptr) parentWidget()->setCursor(Qt::BusyCursor);

  if (decoder_ == nullptr) {
    decoder_ = std::make_unique<ApplicationDecoder>(app_, *lists_, *progress_);
  }
  decoder_->DecodeFile(fileName);
  if (reading_) progress_->Show();
  reading_ = false;

  if (parentWidget() != nullptr) parentWidget()->unsetCursor();
  hide();
  running_ = false;
  emit RunEnded();
  app_.mFileName.clear();
}

// A decoder that is not at its lines would keep the request for the next file.
void frmDecode::Stop() {
  if (!running_) return;
  stopWanted_ = true;
  if (reading_) decoder_->CloseFile();
}

void frmDecode::BeginReading() {
  reading_ = true;
  if (stopWanted_) decoder_->CloseFile();
}

void frmDecode::reject() {
  if (running_) {
    Stop();
  } else {
    Form::reject();
  }
}

void frmDecode::ShowFilters() {
  const MessageFilters filters = ReadMessageFilters(app_.Parameters);
  txtCountryFilter_->setText(ToQString(app_.Parameters.GetParameter("CountryFilter", " ")));
  txtQuadrantFilter_->setText(ToQString(QuadrantFilterText(filters.QuadrantMask)));
  txtStationFilter_->setText(ToQString(StationFilterText(filters.StationMask)));
}

// Of an empty file there is neither position nor percentage.
void frmDecode::ShowRun(std::int64_t position, std::int64_t maximum) {
  lblBytes_->setText(maximum > 0 ? QString::number(position) : QString());
  lblPercent_->setText(ToQString(PercentText(position, maximum)));
  RefreshList(*lstCountry_, *countries_);
  RefreshList(*lstWMO_, *stations_);
  lblCountryNum_->setText(QString::number(lists_->Countries.Count()));
  lblStationNum_->setText(QString::number(lists_->Stations.Count()));
  lblMsgNum_->setText(QString::number(lists_->DecodedCount));
  for (std::size_t i = 0; i < MessageValues.size(); ++i) {
    lastMessage_[i]->setText(ToQString((*lists_).*MessageValues[i].Text));
  }
}

}  // namespace zg
