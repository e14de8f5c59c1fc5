#include "tables/QtReportForm.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <QShowEvent>
#include <QStandardPaths>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "shell/MenuTree.h"
#include "shell/QtPlatform.h"
#include "tables/QtReportBoxes.h"

namespace zg {
namespace {

constexpr int RemarkLines = 2;
constexpr int MessageLines = 12;
constexpr int MessageWidth = 60;
constexpr int PrintDensity = 4;  // pixels of the printed picture for each on the screen

// A box that shows and does not ask: ticked or grey, out of the way of mouse and keys.
QCheckBox* MakeCheck(QWidget* parent) {
  auto* box = new QCheckBox(parent);
  box->setAttribute(Qt::WA_TransparentForMouseEvents);
  box->setFocusPolicy(Qt::NoFocus);
  box->setEnabled(false);
  return box;
}

template <typename Box>
std::function<void(const QString&)> ShowIn(Box* box) {
  return [box](const QString& text) { box->ShowText(text); };
}

}  // namespace

ReportForm::ReportForm(Application& app, const ReportTable& table, QWidget* parent)
    : Form(app, table.Form, parent), table_(table), place_{app.Stores, app.Texts} {
  auto* header = BuildGroup(ReportHeader, table_.Header, this);
  tabs_ = new QTabWidget(this);
  tabs_->setObjectName(QStringLiteral("tabReport"));
  choices_.resize(table_.Choices.size());
  for (std::size_t tab = 0; tab < ReportTabs; ++tab) tabs_->addTab(BuildTab(tab), QString());
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int tab) {
    if (!filling_) wantedTab_ = tab;
  });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(header);
  layout->addWidget(tabs_, 1);
  layout->addWidget(BuildCommands());

  connect(cmbWmoId_, &QComboBox::currentIndexChanged, this, [this](int row) {
    if (row >= 0 && !filling_) Select(static_cast<std::size_t>(row));
  });
  ReadLabels();
  ShowStep();
  tabs_->setFocus();
  // Sizes are asked for below, before anything was on the screen.
  for (QWidget* widget : findChildren<QWidget*>()) widget->ensurePolished();
  resize(sizeHint().boundedTo(screen()->availableSize()));
}

// --- Building ----------------------------------------------------------------------------------

QWidget* ReportForm::BuildTab(std::size_t tab) {
  auto* page = new QWidget;
  auto* grid = new QGridLayout(page);
  int lastRow = 0;
  bool fills = false;
  for (const ReportGroup& group : table_.Tabs[tab].Groups) {
    grid->addWidget(BuildGroup(tab, group, page), group.Row, group.Part, 1, group.Parts);
    lastRow = std::max(lastRow, group.Row);
    fills = fills || group.Frame.empty();
  }
  for (int part = 0; part < ReportGridParts; ++part) grid->setColumnStretch(part, 1);
  grid->setRowStretch(fills ? lastRow : lastRow + 1, 1);
  return new ReportPage(page, tabs_);
}

QWidget* ReportForm::BuildGroup(std::size_t tab, const ReportGroup& group, QWidget* parent) {
  QWidget* box = nullptr;
  if (group.Frame.empty()) {
    box = new QWidget(parent);
  } else {
    box = new QGroupBox(parent);
    box->setObjectName(ToQString(group.Frame));
  }
  auto* layout = new QVBoxLayout(box);
  if (group.Frame.empty()) layout->setContentsMargins(0, 0, 0, 0);
  if (group.Choice != NothingChosen) {
    layout->addWidget(
        BuildChoice(static_cast<std::size_t>(group.Choice), group.FieldsPerLine, box));
  }
  auto* grid = new QGridLayout;
  layout->addLayout(grid);
  BuildFields(tab, group, box, *grid);
  const bool fills = !group.Fields.empty() && group.Fields[0].Kind == ReportControl::Message;
  if (!fills) layout->addStretch();
  return box;
}

// Labels and controls in turn, so many a line; check boxes in a line of their own below.
void ReportForm::BuildFields(std::size_t tab, const ReportGroup& group, QWidget* box,
                             QGridLayout& grid) {
  int line = 0;
  int place = 0;
  int first = 0;  // column of the grid
  auto* checks = new QHBoxLayout;
  for (const ReportField& row : group.Fields) {
    fields_.push_back(BuildField(tab, row, box));
    const Field& field = fields_.back();
    if (row.Kind == ReportControl::Symbol) {
      grid.addWidget(field.Control, 0, 0, static_cast<int>(group.Fields.size()) - 1, 1);
      first = 1;
      continue;
    }
    if (row.Kind == ReportControl::Check) {
      checks->addWidget(field.Control);
      continue;
    }
    if (place + row.Span > group.FieldsPerLine) {
      ++line;
      place = 0;
    }
    const int column = first + 2 * place;
    if (field.Label == nullptr) {
      grid.addWidget(field.Control, line, column, 1, 2 * row.Span);
    } else {
      grid.addWidget(field.Label, line, column);
      if (column == 0) columns_[{tab, group.Part}].push_back(field.Label);
      grid.addWidget(field.Control, line, column + 1, 1, 2 * row.Span - 1);
    }
    for (int i = 0; i < row.Span; ++i) grid.setColumnStretch(column + 2 * i + 1, 1);
    place += row.Span;
  }
  grid.addLayout(checks, line + 1, 0, 1, -1);
}

ReportForm::Field ReportForm::BuildField(std::size_t tab, const ReportField& row, QWidget* parent) {
  Field field{tab, &row, nullptr, nullptr, {}};
  const std::string label = ReportLabelName(row);
  if (!label.empty()) {
    field.Label = new QLabel(parent);
    field.Label->setObjectName(ToQString(label));
  }
  const auto keep = [&field](auto* control) {
    field.Control = control;
    field.Show = ShowIn(control);
    return control;
  };
  switch (row.Kind) {
    case ReportControl::Box:
      keep(new ReportBox(row.Width, parent));
      break;
    case ReportControl::Symbol:
      keep(new ReportSymbol(parent));
      break;
    case ReportControl::Lines:
      keep(new ReportLines(row.Width, RemarkLines, parent));
      if (field.Label != nullptr) field.Label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
      break;
    case ReportControl::Message: {
      auto* lines = keep(new ReportLines(MessageWidth, MessageLines, parent));
      lines->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
      lines->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
      break;
    }
    case ReportControl::Check: {
      auto* box = MakeCheck(parent);
      field.Control = box;
      field.Show = [box](const QString& text) {
        box->setChecked(!text.isEmpty());
        box->setEnabled(!text.isEmpty());
      };
      break;
    }
    case ReportControl::Records:
      // It shows its records by itself.
      cmbWmoId_ = new RecordBox(app_, table_, row.Width, parent);
      field.Control = cmbWmoId_;
      field.Show = [](const QString&) {};
      break;
  }
  field.Control->setObjectName(ToQString(row.Control));
  if (field.Label != nullptr) field.Label->setBuddy(field.Control);
  return field;
}

QWidget* ReportForm::BuildChoice(std::size_t choice, int perLine, QWidget* parent) {
  const ReportChoice& row = table_.Choices[choice];
  auto* box = new QWidget(parent);
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  auto* group = new QButtonGroup(box);
  // Cloud layers stand in one line.
  const int columns = perLine > 1 ? perLine : row.Members;
  for (int member = 0; member < row.Members; ++member) {
    auto* button = new QRadioButton(box);
    button->setObjectName(ToQString(MemberName(row.Control, member)));
    group->addButton(button);
    connect(button, &QRadioButton::clicked, this,
            [this, choice, member] { Choose(choice, member); });
    grid->addWidget(button, member / columns, member % columns);
    choices_[choice].push_back(button);
  }
  for (int column = 0; column < columns; ++column) grid->setColumnStretch(column, 1);
  return box;
}

QWidget* ReportForm::BuildCommands() {
  frameCommand_ = new QWidget(this);
  frameCommand_->setObjectName(QStringLiteral("FrameCommand"));
  const auto button = [this](const char* name) {
    auto* made = new QPushButton(frameCommand_);
    made->setObjectName(QLatin1String(name));
    return made;
  };
  cmdPrevious_ = button("cmdPrevious");
  cmdNext_ = button("cmdNext");
  cmdReport_ = button("cmdReport");
  cmdCancel_ = button("cmdCancel");
  cmdNext_->setDefault(true);
  connect(cmdNext_, &QPushButton::clicked, this,
          [this] { cmbWmoId_->setCurrentIndex(cmbWmoId_->currentIndex() + 1); });
  connect(cmdPrevious_, &QPushButton::clicked, this,
          [this] { cmbWmoId_->setCurrentIndex(cmbWmoId_->currentIndex() - 1); });
  connect(cmdReport_, &QPushButton::clicked, this, [this] { Report(); });
  connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
  auto* print = new QShortcut(QKeySequence::Print, this);
  connect(print, &QShortcut::activated, cmdReport_, [this] { cmdReport_->click(); });

  auto* layout = new QHBoxLayout(frameCommand_);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(cmdPrevious_);
  layout->addWidget(cmdNext_);
  layout->addStretch();
  layout->addWidget(cmdReport_);
  layout->addWidget(cmdCancel_);
  return frameCommand_;
}

// --- Captions ----------------------------------------------------------------------------------

void ReportForm::SetCaptions() {
  for (std::size_t tab = 0; tab < ReportTabs; ++tab) {
    const ReportTab& row = table_.Tabs[tab];
    tabs_->setTabText(static_cast<int>(tab), ToQString(app_.Choose(row.Italian, row.English)));
  }
  cmdPrevious_->setText(ToQString(app_.Choose("&Precedente", "&Previous")));
  cmdNext_->setText(ToQString(app_.Choose("S&uccessivo", "&Next")));
  cmdReport_->setText(ToQString(app_.Choose("&Stampa...", "P&rint...")));
  cmdReport_->setToolTip(QKeySequence(QKeySequence::Print).toString(QKeySequence::NativeText));
  cmdCancel_->setText(ToQString(app_.Choose("&Chiudi", "&Close")));
  for (const Field& field : fields_) {
    // The two that no label names.
    if (field.Row->Kind == ReportControl::Symbol) {
      field.Control->setAccessibleName(
          ToQString(app_.Choose("Simbolo del tempo", "Weather symbol")));
    } else if (field.Row->Kind == ReportControl::Message) {
      field.Control->setAccessibleName(
          ToQString(app_.Choose("Testo del messaggio", "Text of the message")));
    }
  }
  ShowChoices();
  Fill();
  AlignLabels();
}

// The controls of groups that stand below each other begin at the same place.
void ReportForm::AlignLabels() {
  for (const auto& [column, labels] : columns_) {
    int width = 0;
    for (const QLabel* label : labels) width = std::max(width, label->sizeHint().width());
    for (QLabel* label : labels) label->setMinimumWidth(width);
  }
}

// --- Showing -----------------------------------------------------------------------------------

void ReportForm::ShowRecord(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= Count()) return;
  place_.Index = static_cast<std::size_t>(index);
  if (isVisible()) {
    Select(place_.Index);
  } else {
    show();
  }
  if (isMinimized()) showNormal();
  raise();
  activateWindow();
}

void ReportForm::StoreChanged() {
  if (Message() != shown_) place_.Index = 0;
  if (!isVisible()) return;
  if (Count() == 0) close();
  Load();
}

void ReportForm::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) Load();
  Form::showEvent(event);
}

void ReportForm::Load() {
  app_.Log.Log(app_.Choose("Caricamento dati ...", "Loading data ..."));
  filling_ = true;
  cmbWmoId_->Reload();
  filling_ = false;
  app_.Log.Log(app_.Choose("Caricamento dati ... OK", "Loading data ... OK"));
  Select(place_.Index);
}

// What the user does to the box comes here, and so does what the program does.
void ReportForm::Select(std::size_t index) {
  place_.Index = index;
  filling_ = true;
  cmbWmoId_->setCurrentIndex(index < Count() ? static_cast<int>(index) : -1);
  filling_ = false;
  ShowStep();
  // The keyboard goes on to the record.
  const bool hadFocus = cmbWmoId_->HasFocus();
  cmbWmoId_->setEnabled(false);
  cmbWmoId_->setEnabled(true);
  if (hadFocus) tabs_->setFocus();
}

void ReportForm::ShowStep() {
  ChooseFirstParts(table_, place_);
  shown_ = Message();
  ShowChoices();
  Fill();
  ShowTabs();
  cmdNext_->setEnabled(place_.Index + 1 < Count());
  cmdPrevious_->setEnabled(place_.Index >= 1 && place_.Index < Count());
}

std::string ReportForm::Message() const {
  std::string scratch;
  for (const Field& field : fields_) {
    if (field.Row->Kind != ReportControl::Message) continue;
    return std::string(ReportFieldText(table_, field.Tab, *field.Row, place_, scratch));
  }
  return {};
}

// What was reported stands out, what was not is grey with its label.
void ReportForm::Fill() {
  std::string scratch;
  for (const Field& field : fields_) {
    const std::string_view text = ReportFieldText(table_, field.Tab, *field.Row, place_, scratch);
    field.Show(ToQString(text));
    if (field.Label != nullptr) field.Label->setEnabled(!text.empty());
  }
  const bool stored = place_.Index < Count();
  for (const ReportLabel& row : table_.Labels) {
    findChild<QLabel*>(ToQString(row.Name))
        ->setText(ToQString(stored ? row.Caption(place_) : app_.Choose(row.Italian, row.English)));
  }
  setWindowTitle(stored ? ToQString(ReportCaption(place_.Index, Count()))
                        : QStringLiteral("Meteo Data"));
}

void ReportForm::ShowChoices() {
  const bool stored = place_.Index < Count();
  for (std::size_t choice = 0; choice < choices_.size(); ++choice) {
    const ReportChoice& row = table_.Choices[choice];
    const Buttons& buttons = choices_[choice];
    buttons[0]->group()->setExclusive(false);
    for (int member = 0; member < row.Members; ++member) {
      QRadioButton* button = buttons[static_cast<std::size_t>(member)];
      const bool offered = stored && row.IsOffered(place_, member);
      button->setText(ToQString(row.Caption(place_, member)));
      button->setChecked(member == place_.Chosen[choice]);
      button->setEnabled(offered);
      button->setVisible(offered || !row.HidesOthers);
    }
    buttons[0]->group()->setExclusive(true);
  }
}

// The tab on which the user was stays in front, as far as the record has something on it.
void ReportForm::ShowTabs() {
  filling_ = true;
  std::array<bool, ReportTabs> enabled{};
  for (std::size_t tab = 0; tab < ReportTabs; ++tab) {
    enabled[tab] = IsReportTabEnabled(table_, place_, tab);
    if (enabled[tab]) tabs_->setTabEnabled(static_cast<int>(tab), true);
  }
  const auto first = std::find(enabled.begin(), enabled.end(), true) - enabled.begin();
  const bool wanted = enabled[static_cast<std::size_t>(wantedTab_)];
  if (wanted || first < static_cast<std::ptrdiff_t>(ReportTabs)) {
    tabs_->setCurrentIndex(wanted ? wantedTab_ : static_cast<int>(first));
  }
  for (std::size_t tab = 0; tab < ReportTabs; ++tab) {
    if (!enabled[tab]) tabs_->setTabEnabled(static_cast<int>(tab), false);
  }
  filling_ = false;
}

void ReportForm::Choose(std::size_t choice, int member) {
  ChoosePart(table_, place_, choice, member);
  ShowChoices();
  Fill();
}

// --- Printing ----------------------------------------------------------------------------------

bool ReportForm::ChoosePrinter(QPrinter& printer) {
  if (!QPrinterInfo::availablePrinterNames().isEmpty()) {
    return QPrintDialog(&printer, this).exec() == QDialog::Accepted;
  }
  const QString name =
      SystemDialogs().SaveFile(this, ToQString(app_.Choose("Stampa su file", "Print to file")),
                               QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) +
                                   QStringLiteral("/MeteoData.pdf"),
                               QStringLiteral("PDF (*.pdf)"));
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(name);
  return !name.isEmpty();
}

void ReportForm::Report() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageOrientation(width() > height() ? QPageLayout::Landscape : QPageLayout::Portrait);
  printer.setDocName(windowTitle());
  if (!ChoosePrinter(printer)) return;
  frameCommand_->hide();
  layout()->activate();
  const bool printed = Print(printer);
  frameCommand_->show();
  cmdReport_->setFocus();
  if (printed) return;
  app_.Messages.Show(Prompt::Icon::Critical,
                     app_.Choose("La stampa non e' riuscita.", "The report could not be printed."));
}

// The window as it stands, as large as the page allows. It is painted into a picture first, finer
// than a screen is: painted on the printer, each shade of each frame would become a picture.
bool ReportForm::Print(QPrinter& printer) {
  QImage picture(size() * PrintDensity, QImage::Format_RGB32);
  picture.setDevicePixelRatio(PrintDensity);
  render(&picture);
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  const QRectF page = printer.pageRect(QPrinter::DevicePixel);
  QRectF target({}, QSizeF(size()).scaled(page.size(), Qt::KeepAspectRatio));
  target.moveLeft((page.width() - target.width()) / 2);
  painter.drawImage(target, picture);
  return painter.end();
}

}  // namespace zg
