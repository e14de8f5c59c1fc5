#include "views/FieldSelection.h"

#include <gtest/gtest.h>

#include "shell/TestSupport.h"
#include "views/ViewTestSupport.h"

namespace zg::test {
namespace {

std::string Numbers(const FieldSelection& selection) {
  std::string text;
  for (std::size_t i = 0; i < selection.size(); ++i) {
    if (selection[i]) text += (text.empty() ? "" : " ") + std::to_string(i);
  }
  return text;
}

FieldSelection SelectionOfNumbers(const std::vector<std::size_t>& numbers) {
  FieldSelection selection;
  for (const std::size_t number : numbers) selection.set(number);
  return selection;
}

TEST(FieldSelection, Decode) {
  struct Row {
    const char* text;
    const char* fields;
  };
  const Row rows[] = {
      {"", ""},
      {"0", ""},
      {"1", "0"},
      {"2", "1"},
      {"4", "2"},
      {"8", "3"},
      {"F", "0 1 2 3"},
      {"A", "1 3"},
      {"a5", "1 3 4 6"},
      {"01", "4"},
      {"00000000000000000002", "77"},
      {"00000000000000000008", "79"},
      {"000000000000000000001", ""},
      {"00000000000000000001F", "76"},
      {"G1", "4"},
      {" 1", "4"},
      {"-1", "4"},
  };
  for (const Row& row : rows) EXPECT_EQ(Numbers(DecodeFieldSelection(row.text)), row.fields);
}

TEST(FieldSelection, Encode) {
  struct Row {
    const char* name;
    const GlobalViewTable* table;
    std::vector<std::size_t> selected;
    const char* text;
  };
  const Row rows[] = {
      {"NoneIsStationAndNumber", &SynopGlobalView, {}, "10000000000000000002"},
      {"StationTakenOffComesBack", &SynopGlobalView, {1, 77}, "30000000000000000002"},
      {"FirstOfTheSecondDigit", &SynopGlobalView, {4}, "11000000000000000002"},
      {"TimeOfInsertionIsNotOffered", &SynopGlobalView, {78, 79}, "10000000000000000002"},
      {"MetarNone", &MetarGlobalView, {}, "10000000080000000000"},
      {"MetarTimeOfInsertion", &MetarGlobalView, {40}, "10000000080000000000"},
      {"MetarBeyondTheTable", &MetarGlobalView, {41, 77, 79}, "10000000080000000000"},
      {"MetarDigitsAreUpperCase", &MetarGlobalView, {1, 2, 3, 5, 7}, "FA000000080000000000"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(EncodeFieldSelection(*row.table, SelectionOfNumbers(row.selected)), row.text)
        << row.name;
  }
}

TEST(FieldSelection, AllFieldsAreTheShippedSelection) {
  FieldSelection all;
  all.set();
  const std::string settings = ReadTestFile(std::string(ZG_SOURCE_DIR) + "/data/zephyrgram.ini");
  for (const GlobalViewTable* table : {&SynopGlobalView, &MetarGlobalView}) {
    const std::string line =
        std::string(table->SelectionKey) + " = " + EncodeFieldSelection(*table, all) + "\n";
    EXPECT_NE(settings.find(line), std::string::npos) << line;
  }
}

// What is written reads back as what was selected, each field by itself.
TEST(FieldSelection, EncodeAndDecode) {
  for (const GlobalViewTable* table : {&SynopGlobalView, &MetarGlobalView}) {
    for (std::size_t field = 0; field <= table->RecordIndex; ++field) {
      const FieldSelection selected = SelectionOfNumbers({0, field, table->RecordIndex});
      EXPECT_EQ(DecodeFieldSelection(EncodeFieldSelection(*table, selected)), selected);
    }
  }
}

TEST(FieldSelection, List) {
  TextUtility texts;
  const std::vector<DataField> synop =
      GetFieldsList(SynopGlobalView, "90000000000000000002", texts);
  ASSERT_EQ(synop.size(), 78U);
  EXPECT_EQ(synop.front().Title, "StationId");
  EXPECT_EQ(synop.front().Key, "StationId");
  EXPECT_TRUE(synop[0].Selected && synop[3].Selected && synop[77].Selected);
  EXPECT_FALSE(synop[1].Selected || synop[76].Selected);
  EXPECT_EQ(synop[52].Title, "Type Layer Oth");
  EXPECT_EQ(synop.back().Key, "RecordIndex");

  texts.SetLanguage(0);
  const std::vector<DataField> metar = GetFieldsList(MetarGlobalView, "0", texts);
  ASSERT_EQ(metar.size(), 40U);
  EXPECT_EQ(metar.front().Title, "Stazione");
  EXPECT_EQ(metar.back().Title, "Indice");
  for (const DataField& field : metar) EXPECT_FALSE(field.Selected) << field.Key;
}

// A user who takes everything off still gets the columns of the station and the number.
TEST(FieldSelection, NothingSelectedGivesTwoColumns) {
  const ViewFixture fixture;
  for (const GlobalViewTable* table : {&SynopGlobalView, &MetarGlobalView}) {
    GlobalView view(*table, fixture.Stores, fixture.Texts);
    view.SetColumns(EncodeFieldSelection(*table, {}));
    EXPECT_EQ(Headings(view), (std::vector<std::string>{"StationId", "Record Index"}));
  }
}

TEST(FieldSelection, CaptionsOfTheWindows) {
  TextUtility texts;
  EXPECT_EQ(SynopGlobalView.FieldsCaption.In(texts), "Synop Meteo Data Fields");
  EXPECT_EQ(MetarGlobalView.FieldsCaption.In(texts), "Metar/TAF Data Fields");
  texts.SetLanguage(0);
  EXPECT_EQ(SynopGlobalView.FieldsCaption.In(texts), "Campi Dati Meteo Synop");
  EXPECT_EQ(MetarGlobalView.FieldsCaption.In(texts), "Campi Dati Meteo Metar/TAF");
}

}  // namespace
}  // namespace zg::test
