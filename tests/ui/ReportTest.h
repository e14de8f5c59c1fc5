// What the tests of the two report windows share: records decoded from the shipped samples or from
// typed messages, and the comparison of a window with the record that it shows.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <string>
#include <string_view>

#include "shell/ApplicationDecoder.h"
#include "shell/NullPlatform.h"
#include "tables/ReportFields.h"
#include "ui/UiTest.h"

namespace zg::test {

// A report window that prints to a PDF file, "" for a user who does not want to, and notes whether
// the buttons could be seen when it was painted.
template <typename Window>
class PrintingReport : public Window {
 public:
  PrintingReport(Application& app, QString file) : Window(app, nullptr), file_(std::move(file)) {
    Find<QWidget>(*this, "tabReport").installEventFilter(this);
  }

  bool ChoosePrinter(QPrinter& printer) override {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file_);
    Chosen = true;
    return !file_.isEmpty();
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint && Chosen) {
      ButtonsSeen = ButtonsSeen || Find<QWidget>(*this, "FrameCommand").isVisible();
      Painted = true;
    }
    return false;
  }

  bool Chosen = false;
  bool Painted = false;
  bool ButtonsSeen = false;

 private:
  QString file_;
};

class ReportTest : public UiTest {
 protected:
  explicit ReportTest(const ReportTable& table) : table_(table) {}

  std::size_t Count() const { return table_.Count(App.Stores); }

  void DecodeSample(const std::string& file) {
    decoder_.DecodeFile(Folder.Path() + "MeteoFiles/" + file);
  }

  // A file of the messages, each with its heading.
  void DecodeText(std::string_view text) {
    WriteTestFile(Folder.Path() + "MeteoFiles/Typed.txt", text);
    DecodeSample("Typed.txt");
  }

  static void Click(const QWidget& form, const char* button) {
    QTest::mouseClick(&Find<QAbstractButton>(form, button), Qt::LeftButton);
  }

  static std::string Text(const QWidget& form, const std::string& control) {
    const auto* widget = form.findChild<QWidget*>(QString::fromStdString(control));
    if (const auto* line = qobject_cast<const QLineEdit*>(widget)) {
      return line->text().toStdString();
    }
    if (const auto* lines = qobject_cast<const QPlainTextEdit*>(widget)) {
      return lines->toPlainText().toStdString();
    }
    if (const auto* box = qobject_cast<const QCheckBox*>(widget)) {
      return box->isChecked() ? "1" : "";
    }
    if (const auto* list = qobject_cast<const QComboBox*>(widget)) {
      return list->currentText().toStdString();
    }
    return "no control " + control;
  }

  // Each control of the table against the text of the record, and what is empty against grey.
  void ExpectRecord(const QWidget& form, std::size_t index) {
    ReportPlace place{.Stores = App.Stores, .Texts = App.Texts, .Index = index};
    ChooseFirstParts(table_, place);
    const auto expect = [&](std::size_t tab, const ReportGroup& group) {
      for (const ReportField& field : group.Fields) {
        std::string scratch;
        const std::string control(field.Control);
        const std::string expected(ReportFieldText(table_, tab, field, place, scratch));
        EXPECT_EQ(Text(form, control), expected) << control << " of record " << index;
        if (field.Kind == ReportControl::Records) continue;
        const auto& widget = Find<QWidget>(form, control.c_str());
        EXPECT_EQ(widget.isEnabledTo(tabPage(form, tab)), !expected.empty()) << control;
      }
    };
    expect(ReportHeader, table_.Header);
    for (std::size_t tab = 0; tab < ReportTabs; ++tab) {
      for (const ReportGroup& group : table_.Tabs[tab].Groups) expect(tab, group);
      const auto& tabs = Find<QTabWidget>(form, "tabReport");
      EXPECT_EQ(tabs.isTabEnabled(static_cast<int>(tab)), IsReportTabEnabled(table_, place, tab))
          << "tab " << tab << " of record " << index;
    }
    EXPECT_EQ(form.windowTitle().toStdString(), ReportCaption(index, Count()));
  }

  // Goes through all records by cmdNext.
  void ExpectAllRecords(const QWidget& form) {
    const std::size_t count = Count();
    ASSERT_GT(count, 0u);
    for (std::size_t index = 0; index < count; ++index) {
      ExpectRecord(form, index);
      if (::testing::Test::HasFailure()) return;
      EXPECT_EQ(Find<QPushButton>(form, "cmdNext").isEnabled(), index + 1 < count);
      EXPECT_EQ(Find<QPushButton>(form, "cmdPrevious").isEnabled(), index >= 1);
      Click(form, "cmdNext");
    }
  }

  // The tabs that can be opened, as "0 4".
  static std::string EnabledTabs(const QWidget& form) {
    const auto& tabs = Find<QTabWidget>(form, "tabReport");
    std::string enabled;
    for (int tab = 0; tab < tabs.count(); ++tab) {
      if (!tabs.isTabEnabled(tab)) continue;
      enabled += (enabled.empty() ? "" : " ") + std::to_string(tab);
    }
    return enabled;
  }

  static std::string TabCaptions(const QWidget& form) {
    const auto& tabs = Find<QTabWidget>(form, "tabReport");
    std::string captions;
    for (int tab = 0; tab < tabs.count(); ++tab) {
      captions += (captions.empty() ? "" : "|") + tabs.tabText(tab).toStdString();
    }
    return captions;
  }

  // Members of a control array that can be chosen, the chosen one in brackets: "0 [2]".
  static std::string Options(const QWidget& form, const char* array, int members) {
    std::string options;
    for (int member = 0; member < members; ++member) {
      const std::string name = std::string(array) + "(" + std::to_string(member) + ")";
      const auto& button = Find<QRadioButton>(form, name.c_str());
      const std::string number = std::to_string(member);
      EXPECT_TRUE(button.isEnabled() || !button.isChecked()) << name;
      if (!button.isEnabledTo(button.parentWidget())) continue;
      options += options.empty() ? "" : " ";
      options += button.isChecked() ? "[" + number + "]" : number;
    }
    return options;
  }

  static QString LabelText(const QWidget& form, const char* label) {
    return Find<QLabel>(form, label).text();
  }

  const ReportTable& table_;

 private:
  static const QWidget* tabPage(const QWidget& form, std::size_t tab) {
    if (tab == ReportHeader) return &form;
    return Find<QTabWidget>(form, "tabReport").widget(static_cast<int>(tab));
  }

  DecodeObserver observer_;
  NullProgress progress_;
  ApplicationDecoder decoder_{App, observer_, progress_};
};

}  // namespace zg::test
