// The label files of all forms: both languages name the same controls, each control that is there;
// each caption has its line; no two mnemonics of a window or a menu are the same.
#include <QCheckBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <map>
#include <memory>
#include <set>

#include "decode/frmDecode.h"
#include "decode/frmLineInputMsg.h"
#include "shell/LabelFile.h"
#include "shell/QtForm.h"
#include "shell/frmBrowser.h"
#include "shell/frmInit.h"
#include "shell/frmLanguage.h"
#include "shell/frmMain.h"
#include "tables/frmMetarMeteoData.h"
#include "tables/frmSynopMeteoData.h"
#include "ui/UiTest.h"
#include "views/frmCountryFilter.h"
#include "views/frmDataFields.h"
#include "views/frmGlobalView.h"
#include "views/frmQuadrantFilter.h"
#include "views/frmStationFilter.h"

namespace zg {
namespace {

// What a form needs to be made.
struct Program {
  Application& App;
  WindowLog& Log;
  Dialogs& Answers;
  frmCountryFilter& CountryFilter;
};

using Window = std::unique_ptr<QWidget>;

template <typename Form>
Window Make(const Program& program) {
  return std::make_unique<Form>(program.App, nullptr);
}

template <const GlobalViewTable& Table>
Window MakeView(const Program& program) {
  return std::make_unique<frmGlobalView>(program.App, program.Answers, Table, nullptr);
}

template <const GlobalViewTable& Table>
Window MakeFields(const Program& program) {
  return std::make_unique<frmDataFields>(program.App, Table, nullptr);
}

struct FormRow {
  const char* name;
  Window (*make)(const Program&);
  // Controls whose captions come from code; a control array by its name.
  std::set<std::string> fromCode;
};

void PrintTo(const FormRow& row, std::ostream* out) { *out << row.name; }

const FormRow Forms[] = {
    {"frmMain",
     [](const Program& program) -> Window {
       return std::make_unique<frmMain>(program.App, program.Log, program.Answers);
     },
     {"StatusBar", "mnuTaf", "mnuMetar", "mnuPicture1", "mnuPicture2", "mnuPicture3", "mnuPicture4",
      "mnuPicture5"}},
    {"frmInit",
     [](const Program& program) -> Window {
       return std::make_unique<frmInit>(program.App, program.CountryFilter);
     },
     {"lblVersion", "lblGraphics", "lblAction"}},
    {"frmLanguage", Make<frmLanguage>, {}},
    {"frmBrowser", Make<frmBrowser>, {}},
    {"frmDecode", Make<frmDecode>, {}},
    {"frmLineInputMsg", Make<frmLineInputMsg>, {}},
    {"frmCountryFilter", Make<frmCountryFilter>, {"lblState"}},
    {"frmQuadrantFilter", Make<frmQuadrantFilter>, {"chkQuadrantCheck"}},
    {"frmStationFilter", Make<frmStationFilter>, {"chkStation"}},
    {"frmSynopMeteoData", Make<frmSynopMeteoData>, {"lblWmoId", "lblICAO", "lblDewpoint"}},
    {"frmMetarMeteoData", Make<frmMetarMeteoData>, {"lblWmoId", "lblICAO"}},
    {"frmSynopGlobalView", MakeView<SynopGlobalView>, {"lblCountry", "chkFilter", "lblProgr"}},
    {"frmMetarGlobalView", MakeView<MetarGlobalView>, {"lblCountry", "chkFilter", "lblProgr"}},
    {"frmSynopDataFields", MakeFields<SynopGlobalView>, {"lblState"}},
    {"frmMetarDataFields", MakeFields<MetarGlobalView>, {"lblState"}},
};

// A control that has a caption of one of the kinds that label files set.
struct Caption {
  std::string Name;  // of a control array its own
  QString Text;
};

std::string ArrayName(const QObject& control) {
  const std::string name = control.objectName().toStdString();
  return name.substr(0, name.find('('));
}

// A window owns others: what stands in those is theirs.
template <typename Control>
std::vector<Control*> ControlsOf(const QWidget& form) {
  std::vector<Control*> controls;
  for (Control* control : form.findChildren<Control*>()) {
    const QWidget* owner = control->parentWidget();
    while (qobject_cast<const QDialog*>(owner) == nullptr &&
           qobject_cast<const QMainWindow*>(owner) == nullptr) {
      owner = owner->parentWidget();
    }
    if (owner == &form) controls.push_back(control);
  }
  return controls;
}

std::vector<Caption> CaptionsOf(const QWidget& form) {
  std::vector<Caption> captions;
  const auto add = [&captions](const QObject& control, const QString& text) {
    captions.push_back({ArrayName(control), text});
  };
  for (const QLabel* label : ControlsOf<QLabel>(form)) add(*label, label->text());
  for (const QGroupBox* group : ControlsOf<QGroupBox>(form)) add(*group, group->title());
  for (const QCheckBox* box : ControlsOf<QCheckBox>(form)) add(*box, box->text());
  for (const QMenu* menu : ControlsOf<QMenu>(form)) {
    add(*menu, menu->title());
    for (const QAction* action : menu->actions()) {
      if (!action->isSeparator() && action->menu() == nullptr) add(*action, action->text());
    }
  }
  return captions;
}

// Mnemonics of one window, or of one menu: the texts that each key stands for.
using Mnemonics = std::map<QString, std::vector<QString>>;

void AddMnemonic(Mnemonics& mnemonics, const QString& text) {
  const QKeySequence key = QKeySequence::mnemonic(text);
  if (!key.isEmpty()) mnemonics[key.toString()].push_back(text);
}

void ExpectUnique(const Mnemonics& mnemonics, const std::string& where) {
  for (const auto& [key, texts] : mnemonics) {
    EXPECT_EQ(texts.size(), 1u)
        << where << ": " << key.toStdString() << " is "
        << QStringList(texts.begin(), texts.end()).join(" and ").toStdString();
  }
}

void ExpectUniqueInMenu(const QWidget& menu) {
  Mnemonics mnemonics;
  for (const QAction* action : menu.actions()) {
    if (action->isVisible()) AddMnemonic(mnemonics, action->text());
  }
  ExpectUnique(mnemonics, menu.objectName().toStdString());
}

void ExpectUniqueInWindow(const QWidget& form) {
  Mnemonics mnemonics;
  if (const auto* main = qobject_cast<const QMainWindow*>(&form)) {
    for (const QAction* action : main->menuBar()->actions()) AddMnemonic(mnemonics, action->text());
  }
  for (const QLabel* label : ControlsOf<QLabel>(form)) {
    if (label->buddy() != nullptr) AddMnemonic(mnemonics, label->text());
  }
  for (const QGroupBox* group : ControlsOf<QGroupBox>(form)) {
    AddMnemonic(mnemonics, group->title());
  }
  for (const QAbstractButton* button : ControlsOf<QAbstractButton>(form)) {
    AddMnemonic(mnemonics, button->text());
  }
  ExpectUnique(mnemonics, form.objectName().toStdString());
}

class Labels : public test::UiTest, public ::testing::WithParamInterface<FormRow> {
 protected:
  Labels() : UiTest(false) {}

  Window MakeForm() { return GetParam().make({App, Log, Dialogs, CountryFilter}); }

  LabelFile Read(std::uint8_t language) {
    TextUtility texts;
    texts.SetLanguage(language);
    LabelFile labels = ReadLabelFile(std::string(ZG_SOURCE_DIR) + "/data/" +
                                     LabelFileName(GetParam().name, texts));
    EXPECT_EQ(labels.Error, "");
    return labels;
  }

 private:
  frmCountryFilter CountryFilter{App, nullptr};
};

constexpr std::uint8_t Languages[] = {0, 1};

TEST_P(Labels, BothLanguagesNameTheSameControls) {
  const LabelFile italian = Read(0);
  const LabelFile english = Read(1);
  EXPECT_EQ(italian.FormCaption.has_value(), english.FormCaption.has_value());
  const auto names = [](const LabelFile& labels) {
    std::vector<std::string> keys;
    for (const auto& [name, caption] : labels.Captions) keys.push_back(name);
    return keys;
  };
  EXPECT_EQ(names(italian), names(english));
}

TEST_P(Labels, EachLineNamesAControlOnceAndSaysSomething) {
  const Window form = MakeForm();
  std::set<std::string> controls;
  for (const Caption& caption : CaptionsOf(*form)) controls.insert(caption.Name);
  for (const std::uint8_t language : Languages) {
    std::set<std::string> named;
    for (const auto& [name, caption] : Read(language).Captions) {
      EXPECT_TRUE(controls.count(name) == 1) << name << " is no control";
      EXPECT_TRUE(named.insert(name).second) << name << " stands there twice";
      EXPECT_EQ(GetParam().fromCode.count(name), 0u) << name << " is set by code";
      EXPECT_NE(caption, "") << name;
    }
  }
}

TEST_P(Labels, EachCaptionHasItsLine) {
  const Window form = MakeForm();
  const LabelFile labels = Read(0);
  for (const Caption& caption : CaptionsOf(*form)) {
    if (caption.Text.isEmpty() || GetParam().fromCode.count(caption.Name) == 1) continue;
    EXPECT_NE(caption.Name, "") << "without a name: " << caption.Text.toStdString();
    EXPECT_NE(labels.Find(caption.Name), nullptr)
        << caption.Name << ": " << caption.Text.toStdString();
  }
}

TEST_P(Labels, AChangeOfLanguageReachesEachControl) {
  const Window form = MakeForm();
  for (const std::uint8_t language : Languages) {
    App.Texts.SetLanguage(language);
    ReadLabelOfAllForms(App);
    const LabelFile labels = Read(language);
    if (labels.FormCaption) {
      EXPECT_EQ(form->windowTitle(), ToQString(*labels.FormCaption));
    }
    for (const Caption& caption : CaptionsOf(*form)) {
      const std::string* line = labels.Find(caption.Name);
      EXPECT_EQ(caption.Text.toStdString(), line != nullptr ? *line : caption.Text.toStdString())
          << caption.Name;
    }
  }
  EXPECT_TRUE(Messages.Boxes.empty());
}

// Buttons and option buttons have their captions from code: they must not be forgotten there.
TEST_P(Labels, EachButtonHasACaption) {
  for (const std::uint8_t language : Languages) {
    App.Texts.SetLanguage(language);
    const Window form = MakeForm();
    for (const QAbstractButton* button : ControlsOf<QAbstractButton>(*form)) {
      // Arrows and crosses inside of other controls.
      if (button->objectName().startsWith("qt_") || button->inherits("QToolButton")) continue;
      if (button->inherits("QTableCornerButton")) continue;
      EXPECT_NE(button->text(), "") << button->objectName().toStdString();
    }
  }
}

TEST_P(Labels, MnemonicsAreUnique) {
  for (const std::uint8_t language : Languages) {
    SCOPED_TRACE(language == 0 ? "Italian" : "English");
    App.Texts.SetLanguage(language);
    const Window form = MakeForm();
    ExpectUniqueInWindow(*form);
    for (const QMenu* menu : ControlsOf<QMenu>(*form)) ExpectUniqueInMenu(*menu);
  }
}

// The mark in a label works only if there is a control to go to.
TEST_P(Labels, MnemonicsOfLabelsHaveAControl) {
  const Window form = MakeForm();
  for (const QLabel* label : ControlsOf<QLabel>(*form)) {
    if (GetParam().fromCode.count(ArrayName(*label)) == 1) continue;
    if (QKeySequence::mnemonic(label->text()).isEmpty()) continue;
    EXPECT_NE(label->buddy(), nullptr) << label->objectName().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Forms, Labels, ::testing::ValuesIn(Forms),
                         [](const auto& row) { return std::string(row.param.name); });

// A form whose files are there but which nobody added to the table above is not tested.
TEST(LabelFiles, BelongToAFormOfTheTable) {
  std::set<std::string> names;
  for (const FormRow& row : Forms) names.insert(row.name);
  for (const auto& entry :
       std::filesystem::directory_iterator(std::string(ZG_SOURCE_DIR) + "/data")) {
    const std::string ending = entry.path().extension().string();
    if (ending != ".ita" && ending != ".eng") continue;
    EXPECT_EQ(names.count(entry.path().stem().string()), 1u) << entry.path().filename();
  }
}

}  // namespace
}  // namespace zg
