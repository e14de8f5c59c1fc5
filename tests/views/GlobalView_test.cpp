#include "views/GlobalView.h"

#include <gtest/gtest.h>

#include "views/ViewTestSupport.h"

namespace zg::test {
namespace {

using Strings = std::vector<std::string>;

std::vector<std::string> Stations(const GlobalView& view) {
  Strings stations;
  for (std::size_t row = 0; row < view.RowCount(); ++row) stations.push_back(view.RowText(row));
  return stations;
}

Strings CountriesOf(const GlobalView& view) {
  return {view.Countries().begin(), view.Countries().end()};
}

// --- Which records are rows ----------------------------------------------------------------------

TEST(GlobalView, AllBoxesAreTickedAtFirst) {
  const ViewFixture fixture;
  EXPECT_EQ(GlobalView(SynopGlobalView, fixture.Stores, fixture.Texts).FilterMask(), 0x1FF);
  EXPECT_EQ(GlobalView(MetarGlobalView, fixture.Stores, fixture.Texts).FilterMask(), 0x7F);
}

TEST(GlobalView, Boxes) {
  const auto texts = [](const GlobalViewTable& table) {
    return std::vector<std::string_view>(table.FilterBoxes.begin(), table.FilterBoxes.end());
  };
  using Views = std::vector<std::string_view>;
  EXPECT_EQ(texts(SynopGlobalView),
            (Views{"NW", "NE", "SW", "SE", "Land", "Buoy", "Ship", "AAXX", "BBXX"}));
  EXPECT_EQ(texts(MetarGlobalView), (Views{"NW", "NE", "SW", "SE", "Speci", "Metar", "TAF"}));
}

TEST(GlobalView, ABoxSetsAndClearsItsBit) {
  const ViewFixture fixture;
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetFilter(8, false);
  view.SetFilter(0, false);
  EXPECT_EQ(view.FilterMask(), 0x0FE);
  view.SetFilter(0, true);
  view.SetFilter(0, true);
  EXPECT_EQ(view.FilterMask(), 0x0FF);
}

struct FilterCase {
  const char* name;
  const GlobalViewTable* table;
  std::int32_t flags;
  std::vector<unsigned> unticked;
  bool shown;
};
void PrintTo(const FilterCase& row, std::ostream* out) { *out << row.name; }

class RowFilter : public testing::TestWithParam<FilterCase> {};

TEST_P(RowFilter, ShowsWhatHasATickedBitInEachGroup) {
  const FilterCase& row = GetParam();
  const ViewFixture fixture;
  GlobalView view(*row.table, fixture.Stores, fixture.Texts);
  for (const unsigned box : row.unticked) view.SetFilter(box, false);
  EXPECT_EQ(view.CheckRecordFilter(row.flags, "Italy"), row.shown);
}

const GlobalViewTable* const Synop = &SynopGlobalView;
const GlobalViewTable* const Metar = &MetarGlobalView;
constexpr std::int32_t EveryBit = -1;

INSTANTIATE_TEST_SUITE_P(
    Cases, RowFilter,
    testing::Values(FilterCase{"AllTicked", Synop, ShownSynop, {}, true},
                    FilterCase{"OtherBoxesUnticked", Synop, ShownSynop, {0, 2, 3, 5, 6, 8}, true},
                    FilterCase{"QuadrantUnticked", Synop, ShownSynop, {1}, false},
                    FilterCase{"KindUnticked", Synop, ShownSynop, {4}, false},
                    FilterCase{"MessageUnticked", Synop, ShownSynop, {7}, false},
                    FilterCase{"NoQuadrantTicked", Synop, EveryBit, {0, 1, 2, 3}, false},
                    FilterCase{"NoKindTicked", Synop, EveryBit, {4, 5, 6}, false},
                    FilterCase{"NoMessageTicked", Synop, EveryBit, {7, 8}, false},
                    FilterCase{
                        "NothingTicked", Synop, EveryBit, {0, 1, 2, 3, 4, 5, 6, 7, 8}, false},
                    FilterCase{"WithoutQuadrant", Synop, 0x90, {}, false},
                    FilterCase{"WithoutKind", Synop, 0x82, {}, false},
                    FilterCase{"WithoutMessage", Synop, 0x12, {}, false},
                    FilterCase{"FurtherFlagsDoNotCount", Synop, 0x3E00, {}, false},
                    FilterCase{"TwoOfAGroupOneTicked", Synop, 0x93, {0}, true},
                    FilterCase{"MetarAllTicked", Metar, ShownMetar, {}, true},
                    FilterCase{"MetarOtherBoxesUnticked", Metar, ShownMetar, {0, 2, 3, 5, 6}, true},
                    FilterCase{"MetarQuadrantUnticked", Metar, ShownMetar, {1}, false},
                    FilterCase{"SpeciUnticked", Metar, ShownMetar, {4}, false},
                    FilterCase{"MetarNoQuadrantTicked", Metar, EveryBit, {0, 1, 2, 3}, false},
                    FilterCase{"MetarNoMessageTicked", Metar, EveryBit, {4, 5, 6}, false},
                    FilterCase{"MetarHasNoThirdGroup", Metar, 0x7F, {}, true},
                    FilterCase{"MetarFlagsAboveDoNotCount", Metar, 0x1800, {}, false}),
    testing::PrintToStringParamName());

// Every state of the boxes against every combination of bits, by the rule in other words: a row
// goes as soon as a group has nothing in common with what is ticked.
TEST(GlobalView, EveryCombinationOfBoxesAndFlags) {
  const ViewFixture fixture;
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  int shown = 0;
  for (std::int32_t mask = 0; mask < 0x200; ++mask) {
    for (unsigned box = 0; box < 9; ++box) view.SetFilter(box, (mask >> box & 1) != 0);
    ASSERT_EQ(view.FilterMask(), mask);
    for (std::int32_t flags = 0; flags < 0x200; ++flags) {
      const std::int32_t common = mask & flags;
      const bool wanted = common % 16 != 0 && common / 16 % 8 != 0 && common / 128 != 0;
      shown += wanted ? 1 : 0;
      if (view.CheckRecordFilter(flags, "Italy") != wanted) {
        FAIL() << "mask " << mask << ", flags " << flags;
      }
    }
  }
  // Pairs that have a bit in common: 175 of 256 for four bits, 37 of 64 for three, 7 of 16 for two.
  EXPECT_EQ(shown, 175 * 37 * 7);
}

TEST(GlobalView, CountryFilter) {
  struct Row {
    const char* selected;
    const char* country;
    bool shown;
  };
  const Row rows[] = {
      {"*", "Italy", true},
      {"*", "", true},
      {"*", "Unknow", true},
      {"", "Italy", true},
      {"Italy", "Italy", true},
      {"Italy", "italy", false},
      {"Italy", "Italy ", false},
      {"Italy", "", false},
      {"Italy", "France", false},
      {"United States", "United States", true},
      {"United States", "United States [CO]", true},
      {"United States", "United Statesman", true},
      {"United States", "United State", false},
      {"United States", "United Kingdom", false},
      {"United States [CO]", "United States [CO]", false},
  };
  const ViewFixture fixture;
  for (const GlobalViewTable* table : {Synop, Metar}) {
    GlobalView view(*table, fixture.Stores, fixture.Texts);
    EXPECT_EQ(view.SelectedCountry(), "*");
    for (const Row& row : rows) {
      view.SetSelectedCountry(row.selected);
      EXPECT_EQ(view.CheckRecordFilter(EveryBit, row.country), row.shown)
          << row.selected << " / " << row.country;
    }
  }
}

TEST(GlobalView, BothFiltersHold) {
  ViewFixture fixture;
  fixture.AddSynop("Roma", "Italy", 0x92);
  fixture.AddSynop("Buoy", "Italy", 0x122);
  fixture.AddSynop("Paris", "France", 0x92);
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.RefreshGlobalList();
  EXPECT_EQ(Stations(view), (Strings{"Roma", "Buoy", "Paris"}));
  view.SetSelectedCountry("Italy");
  view.SetFilter(5, false);
  EXPECT_EQ(Stations(view), (Strings{"Roma", "Buoy", "Paris"})) << "only a refresh changes rows";
  view.RefreshGlobalList();
  EXPECT_EQ(Stations(view), Strings{"Roma"});
}

// --- Countries -----------------------------------------------------------------------------------

TEST(GlobalView, CountriesOfRowsInTheOrderOfTheirComing) {
  ViewFixture fixture;
  fixture.AddSynop("1", "Italy");
  fixture.AddSynop("2", "United States [CO]");
  fixture.AddSynop("3", "Unknow");
  fixture.AddSynop("4", "Italy");
  fixture.AddSynop("5", "United States [AK]");
  fixture.AddSynop("6", "France", 0);  // no row
  fixture.AddSynop("7", "Chile");
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  EXPECT_EQ(CountriesOf(view), Strings{"*"});
  view.RefreshGlobalList();
  EXPECT_EQ(CountriesOf(view), (Strings{"*", "Italy", "United States", "Chile"}));
  view.SetSelectedCountry("Chile");
  view.RefreshGlobalList();
  EXPECT_EQ(CountriesOf(view), (Strings{"*", "Italy", "United States", "Chile"}));
}

// --- Rows and cells ------------------------------------------------------------------------------

TEST(GlobalView, AnEmptyStoreHasNoRows) {
  const ViewFixture fixture;
  for (const GlobalViewTable* table : {Synop, Metar}) {
    GlobalView view(*table, fixture.Stores, fixture.Texts);
    view.SetColumns(AllFields);
    view.RefreshGlobalList();
    EXPECT_EQ(view.RowCount(), 0U);
    EXPECT_TRUE(view.RowsCaption().ends_with(": 0/0 Station(s)")) << view.RowsCaption();
  }
}

TEST(GlobalView, RowsCaption) {
  ViewFixture fixture;
  fixture.AddSynop("Roma");
  fixture.AddSynop("Paris", "France");
  fixture.AddSynop("Nowhere", "France", 0);
  fixture.AddMetar("London");
  struct Row {
    const GlobalViewTable* table;
    std::uint8_t language;
    const char* caption;
  };
  const Row rows[] = {{Synop, 1, "Synop Meteo Data: 2/3 Station(s)"},
                      {Synop, 0, "Dati Meteo Synop: 2/3 Stazioni"},
                      {Metar, 1, "Taf/Metar Meteo Data: 1/1 Station(s)"},
                      {Metar, 0, "Dati Meteo Taf/Metar: 1/1 Stazioni"}};
  for (const Row& row : rows) {
    fixture.Texts.SetLanguage(row.language);
    GlobalView view(*row.table, fixture.Stores, fixture.Texts);
    view.RefreshGlobalList();
    EXPECT_EQ(view.RowsCaption(), row.caption);
  }
}

TEST(GlobalView, CaptionsOfTheWindow) {
  TextUtility texts;
  EXPECT_EQ(LoadingCaption(texts), "Loading ...");
  EXPECT_EQ(CountryCaption(texts), "Country");
  texts.SetLanguage(0);
  EXPECT_EQ(LoadingCaption(texts), "Caricamento Dati ...");
  EXPECT_EQ(CountryCaption(texts), "Nazione");
}

TEST(GlobalView, ColumnsAreTheShownFieldsInOrder) {
  const ViewFixture fixture;
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns("1000200000000000000A");  // 0, 17, 77 and 79, which is no field
  EXPECT_EQ(Headings(view), (Strings{"StationId", "DewPoint", "Record Index", ""}));
  EXPECT_EQ(view.ColumnField(1).Key, "DewPoint");
  EXPECT_EQ(view.ColumnField(1).ColumnWidth, 880);
  EXPECT_EQ(view.ColumnField(1).Alignment, Alignment::Right);
}

TEST(GlobalView, TheColumnOfInsertionIsThereOnlyWhenItsBitIsSet) {
  ViewFixture fixture;
  fixture.AddMetar("Roma");
  GlobalView view(MetarGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns("10000000081");
  view.RefreshGlobalList();
  EXPECT_EQ(Headings(view), (Strings{"StationId", "Record Index", "Insert Time"}));
  EXPECT_EQ(view.ColumnField(2).ColumnWidth, 0);
  EXPECT_EQ(view.CellText(0, 2), " ");
}

TEST(GlobalView, TitlesStayInTheLanguageOfTheBeginning) {
  ViewFixture fixture;
  fixture.Texts.SetLanguage(0);
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  fixture.Texts.SetLanguage(1);
  view.SetColumns("1");
  view.RefreshGlobalList();
  EXPECT_EQ(Headings(view), Strings{"Stazione"});
  EXPECT_EQ(view.RowsCaption(), "Synop Meteo Data: 0/0 Station(s)");
}

TEST(GlobalView, CellsStayInTheLanguageOfTheirRefresh) {
  ViewFixture fixture;
  fixture.AddSynop("Roma").CloudCoverCode = 9;
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns(SelectionOf(SynopGlobalView, {"StationId", "CloudCover"}));
  view.RefreshGlobalList();
  const std::string english(fixture.Texts.CloudCoverShort(9));
  fixture.Texts.SetLanguage(0);
  const std::string italian(fixture.Texts.CloudCoverShort(9));
  ASSERT_NE(english, italian);
  EXPECT_EQ(view.CellText(0, 1), english);
  view.RefreshGlobalList();
  EXPECT_EQ(view.CellText(0, 1), italian);
}

TEST(GlobalView, Units) {
  struct Row {
    const char* text;
    const char* without;
  };
  const Row rows[] = {
      {"18.2 °C", "18.2"},
      {"-03.4 °C", "-03.4"},
      {"+1.2 hpa", "+1.2"},
      {"> 50 km", "> 50"},
      {"< 30 m", "< 30"},
      {"05.0 mps (Anem.)", "05.0"},
      {"270 deg", "270"},
      {"15.0 °C (12:00Z)", "15.0 (12:00Z)"},
      {"Calm", "Calm"},
      {"Missing km", "Missing km"},
      {"", " "},
      {" ", " "},
      {"   ", "   "},
      {"87 %", "87 %"},
  };
  ViewFixture fixture;
  for (const Row& row : rows) fixture.AddSynop("5 m").Temperature = row.text;
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns(SelectionOf(SynopGlobalView, {"StationId", "Temperature"}));
  EXPECT_TRUE(view.UnitsShown());
  view.RefreshGlobalList();
  view.SetUnitsShown(false);
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(view.CellText(i, 1), *rows[i].text == '\0' ? " " : rows[i].text);
  }
  view.RefreshGlobalList();
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(view.CellText(i, 1), rows[i].without) << rows[i].text;
    EXPECT_EQ(view.CellText(i, 0), "5 m") << "the main text of a row is no value";
  }
}

TEST(GlobalView, JoinedTextsLoseTheirUnitsToo) {
  MetarSection report;
  report.WindSpeed = "05.0 mps";
  report.WindDir = "270 deg";
  ViewFixture fixture;
  fixture.AddMetar("Roma").Section = {&report, 1};
  GlobalView view(MetarGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns(SelectionOf(MetarGlobalView, {"StationId", "WindSpeed", "WindShearLevel"}));
  view.SetUnitsShown(false);
  view.RefreshGlobalList();
  EXPECT_EQ(view.CellText(0, 1), "05.0   270");
  EXPECT_EQ(view.CellText(0, 2), "   ");
}

TEST(GlobalView, AnEmptyCellIsABlankButAStationStaysAsItIs) {
  ViewFixture fixture;
  fixture.AddSynop("");
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns(SelectionOf(SynopGlobalView, {"StationId", "Visibility"}));
  view.RefreshGlobalList();
  EXPECT_EQ(view.CellText(0, 0), "");
  EXPECT_EQ(view.CellText(0, 1), " ");
}

TEST(GlobalView, ATafWithoutForecastTemperaturesShowsBlanks) {
  ViewFixture fixture;
  fixture.AddMetar("Roma", "Italy", 0x42);
  GlobalView view(MetarGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns(
      SelectionOf(MetarGlobalView, {"StationId", "ForecastTemperature1", "ForecastTemperature2"}));
  view.RefreshGlobalList();
  EXPECT_EQ(view.CellText(0, 1), " ");
  EXPECT_EQ(view.CellText(0, 2), " ");
}

// A selection without the station: its text is the first cell of a row all the same.
TEST(GlobalView, TheFirstCellIsTheStationWhateverTheHeading) {
  ViewFixture fixture;
  fixture.AddSynop("Roma").Station.MsgId = "SMIT01";
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns(SelectionOf(SynopGlobalView, {"Country", "MsgId"}));
  view.RefreshGlobalList();
  EXPECT_EQ(Headings(view), (Strings{"Country", "MsgId"}));
  EXPECT_EQ(view.CellText(0, 0), "Roma");
  EXPECT_EQ(view.CellText(0, 1), "Italy");
}

TEST(GlobalView, RowsAreASnapshot) {
  ViewFixture fixture;
  fixture.AddSynop("Roma");
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns("1");
  view.RefreshGlobalList();
  fixture.AddSynop("Paris");
  EXPECT_EQ(Stations(view), Strings{"Roma"});
  EXPECT_EQ(view.RowsCaption(), "Synop Meteo Data: 1/1 Station(s)");
  view.RefreshGlobalList();
  EXPECT_EQ(Stations(view), (Strings{"Roma", "Paris"}));
}

TEST(GlobalView, FrozenRowsOutliveTheirRecords) {
  ViewFixture fixture;
  fixture.AddSynop("Roma").Temperature = "18.2 °C";
  fixture.AddSynop("Hidden", "Italy", 0);
  fixture.AddSynop("Bari");
  fixture.AddSynop("Como").Temperature = "02.0 °C";
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns(SelectionOf(SynopGlobalView, {"StationId", "Temperature", "RecordIndex"}));
  view.SetUnitsShown(false);
  view.RefreshGlobalList();
  view.ClickColumn(0);
  view.Freeze();
  fixture.Stores.SynopStore.Reset(0);
  EXPECT_EQ(Stations(view), (Strings{"Bari", "Como", "Roma"}));
  EXPECT_EQ(ColumnTexts(view, 1), (Strings{" ", "02.0", "18.2"}));
  EXPECT_EQ(ColumnTexts(view, 2), (Strings{"003", "004", "001"}));
  EXPECT_EQ(view.RowsCaption(), "Synop Meteo Data: 3/4 Station(s)");
  view.ClickColumn(0);
  view.Freeze();
  EXPECT_EQ(Stations(view), (Strings{"Roma", "Como", "Bari"}));
  EXPECT_EQ(view.RecordOfRow(0), 0U);
  view.RefreshGlobalList();
  EXPECT_EQ(view.RowCount(), 0U);
}

TEST(GlobalView, RowsWhoseRecordsAreGoneAreEmpty) {
  ViewFixture fixture;
  fixture.AddSynop("Roma");
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns("8001");
  view.RefreshGlobalList();
  fixture.Stores.SynopStore.Reset(0);
  EXPECT_EQ(view.RowText(0), "");
  EXPECT_EQ(view.CellText(0, 1), " ");
}

TEST(GlobalView, FillAllItemShowsTheShapeOfTheGrid) {
  ViewFixture fixture;
  fixture.AddSynop("Roma");
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns("7");
  view.FillAllItem("         ");
  EXPECT_EQ(view.RowCount(), 30U);
  for (std::size_t column = 0; column < 3; ++column) {
    EXPECT_EQ(ColumnTexts(view, column), Strings(30, "         "));
  }
  view.RefreshGlobalList();
  EXPECT_EQ(Stations(view), Strings{"Roma"});
}

// --- The record of a row -------------------------------------------------------------------------

TEST(GlobalView, RecordOfRow) {
  ViewFixture fixture;
  for (int i = 0; i < 1001; ++i) fixture.AddSynop(i % 2 == 0 ? "Roma" : "Bari");
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns(SelectionOf(SynopGlobalView, {"StationId", "Country", "RecordIndex"}));
  view.RefreshGlobalList();
  EXPECT_EQ(view.RecordOfRow(0), 0U);
  EXPECT_EQ(view.CellText(999, 2), "1000");
  EXPECT_EQ(view.RecordOfRow(999), 999U);
  view.ClickColumn(0);
  EXPECT_EQ(view.RowText(0), "Bari");
  EXPECT_EQ(view.RecordOfRow(0), 1U);
  EXPECT_EQ(view.RecordOfRow(500), 0U);
  view.SetUnitsShown(false);
  view.RefreshGlobalList();
  EXPECT_EQ(view.RecordOfRow(999), 999U);
}

TEST(GlobalView, WithoutItsNumberARowHasNoRecord) {
  ViewFixture fixture;
  fixture.AddSynop("Roma");
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns("1");
  view.RefreshGlobalList();
  EXPECT_EQ(view.RecordOfRow(0), std::nullopt);
  view.SetColumns(SelectionOf(SynopGlobalView, {"StationId", "RecordIndex"}));
  view.FillAllItem("         ");
  EXPECT_EQ(view.RecordOfRow(0), std::nullopt);
}

// --- Sorting -------------------------------------------------------------------------------------

// A view of four records with the station, the country and the message identifier; the field
// indices 0, 3 and 6 stand at the positions 0, 3 and 6 only when all fields are shown.
struct SortFixture : ViewFixture {
  SortFixture() {
    Add("Roma", "Italy", "4");
    Add("Aosta", "Italy", "10");
    Add("Lyon", "France", "3");
    Add("roma", "Chile", "");
  }
  void Add(std::string_view station, std::string_view country, std::string_view msgId) {
    AddSynop(station, country).Station.MsgId = msgId;
  }
};

TEST(GlobalView, AClickSortsByText) {
  SortFixture fixture;
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns(AllFields);
  view.RefreshGlobalList();
  EXPECT_EQ(Stations(view), (Strings{"Roma", "Aosta", "Lyon", "roma"}));
  view.ClickColumn(6);
  EXPECT_EQ(ColumnTexts(view, 6), (Strings{" ", "10", "3", "4"}));
  EXPECT_EQ(Stations(view), (Strings{"roma", "Aosta", "Lyon", "Roma"}));
}

TEST(GlobalView, TheDirectionTurnsWithEachClickOnTheSameColumn) {
  SortFixture fixture;
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns(AllFields);
  view.RefreshGlobalList();
  const Strings up = {"Aosta", "Lyon", "Roma", "roma"};
  const Strings down = {"roma", "Roma", "Lyon", "Aosta"};
  view.ClickColumn(0);
  EXPECT_EQ(Stations(view), up);
  view.ClickColumn(0);
  EXPECT_EQ(Stations(view), down);
  view.ClickColumn(0);
  EXPECT_EQ(Stations(view), up);
  view.ClickColumn(3);
  EXPECT_EQ(ColumnTexts(view, 3), (Strings{"Chile", "France", "Italy", "Italy"}));
  view.ClickColumn(0);
  EXPECT_EQ(Stations(view), up) << "another column came between";
  view.ClickColumn(0);
  EXPECT_EQ(Stations(view), down);
  view.ClickColumn(3);
  EXPECT_EQ(ColumnTexts(view, 3), (Strings{"Chile", "France", "Italy", "Italy"}));
}

TEST(GlobalView, RowsWithTheSameTextKeepTheirOrder) {
  SortFixture fixture;
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns(AllFields);
  view.RefreshGlobalList();
  view.ClickColumn(3);
  EXPECT_EQ(Stations(view), (Strings{"roma", "Lyon", "Roma", "Aosta"}));
  view.ClickColumn(3);
  EXPECT_EQ(Stations(view), (Strings{"Roma", "Aosta", "Lyon", "roma"}));
}

TEST(GlobalView, ARefreshBringsBackTheOrderOfTheStore) {
  SortFixture fixture;
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns(AllFields);
  view.RefreshGlobalList();
  view.ClickColumn(0);
  view.RefreshGlobalList();
  EXPECT_EQ(Stations(view), (Strings{"Roma", "Aosta", "Lyon", "roma"}));
  // Column and direction of the last click are not forgotten.
  view.ClickColumn(0);
  EXPECT_EQ(Stations(view), (Strings{"roma", "Roma", "Lyon", "Aosta"}));
}

TEST(GlobalView, TheSortKeyIsAFieldTakenForAPosition) {
  struct Row {
    const char* name;
    std::vector<std::string_view> fields;
    std::size_t clicked;
    Strings stations;
  };
  const Row rows[] = {
      {"ByTheStation", {"StationId", "Country"}, 0, {"Aosta", "Lyon", "Roma", "roma"}},
      {"ByNone", {"StationId", "Country"}, 1, {"Roma", "Aosta", "Lyon", "roma"}},
      // StationHT is field 1; the column at position 1 is the country.
      {"FieldWhereItStands",
       {"StationId", "StationHT", "SensorHT", "Country"},
       3,
       {"roma", "Lyon", "Roma", "Aosta"}},
      // SensorHT is field 2; at position 2 stands the country.
      {"ByAnother", {"StationId", "SensorHT", "Country"}, 1, {"roma", "Lyon", "Roma", "Aosta"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    SortFixture fixture;
    GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
    view.SetColumns(SelectionOf(SynopGlobalView, row.fields));
    view.RefreshGlobalList();
    view.ClickColumn(row.clicked);
    EXPECT_EQ(Stations(view), row.stations);
  }
}

TEST(GlobalView, AClickThatSortsByNoneCountsForTheDirection) {
  SortFixture fixture;
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns(SelectionOf(SynopGlobalView, {"StationId", "Country"}));
  view.RefreshGlobalList();
  view.ClickColumn(0);
  view.ClickColumn(1);
  view.ClickColumn(0);
  EXPECT_EQ(Stations(view), (Strings{"Aosta", "Lyon", "Roma", "roma"}));
}

TEST(GlobalView, SortingGoesByTheTextsAsTheyAreShown) {
  ViewFixture fixture;
  fixture.AddSynop("1").StatPressure = "1 mm";
  fixture.AddSynop("2").StatPressure = "1";
  fixture.AddSynop("3").StatPressure = "1 !";
  GlobalView view(SynopGlobalView, fixture.Stores, fixture.Texts);
  view.SetColumns(AllFields);
  view.RefreshGlobalList();
  const std::size_t column = FieldIndex(SynopGlobalView, "StatPressure");
  view.ClickColumn(column);
  EXPECT_EQ(Stations(view), (Strings{"2", "3", "1"}));
  view.SetUnitsShown(false);
  view.RefreshGlobalList();
  view.ClickColumn(0);
  view.ClickColumn(column);
  EXPECT_EQ(Stations(view), (Strings{"1", "2", "3"}));
}

}  // namespace
}  // namespace zg::test
