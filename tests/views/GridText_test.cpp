#include "views/GridText.h"

#include <gtest/gtest.h>

#include "views/ViewTestSupport.h"

namespace zg::test {
namespace {

// Three rows of station, country and record index.
class GridText : public testing::Test {
 protected:
  GridText() {
    fixture_.AddMetar("Roma/Fiumicino", "Italy");
    fixture_.AddMetar("Genève", "Switzerland");
    fixture_.AddMetar("Parma", "");
    View.SetColumns(SelectionOf(MetarGlobalView, {"StationId", "Country", "RecordIndex"}));
    View.RefreshGlobalList();
  }

 private:
  ViewFixture fixture_;

 protected:
  GlobalView View{MetarGlobalView, fixture_.Stores, fixture_.Texts};
};

using Cell = std::optional<GridCell>;

TEST_F(GridText, FindsTheNextCell) {
  struct Row {
    const char* part;
    GridCell start;
    Cell forward;
    Cell backward;
  };
  const Row rows[] = {
      {"Roma", {0, 0}, GridCell{0, 0}, GridCell{0, 0}},
      {"Roma", {0, 1}, GridCell{0, 0}, GridCell{0, 0}},
      {"ma", {0, 1}, GridCell{2, 0}, GridCell{0, 0}},
      {"ma", {2, 2}, GridCell{0, 0}, GridCell{2, 0}},
      {"rOMA", {1, 0}, GridCell{0, 0}, GridCell{0, 0}},
      {"land", {0, 0}, GridCell{1, 1}, GridCell{1, 1}},
      {"002", {2, 2}, GridCell{1, 2}, GridCell{1, 2}},
      {"ève", {0, 0}, GridCell{1, 0}, GridCell{1, 0}},
      {"ÈVE", {0, 0}, {}, {}},
      {"Milano", {1, 1}, {}, {}},
      {"Roma/Fiumicino and more", {0, 0}, {}, {}},
      {"", {0, 0}, {}, {}},
      {"Roma", {3, 0}, {}, {}},
      {"Roma", {0, 3}, {}, {}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(FindCell(View, row.part, row.start), row.forward) << row.part;
    EXPECT_EQ(FindCell(View, row.part, row.start, FindDirection::Backward), row.backward)
        << row.part << " backward";
  }
}

TEST_F(GridText, NothingToFindInAnEmptyGrid) {
  for (unsigned box = 0; box < 7; ++box) View.SetFilter(box, false);
  View.RefreshGlobalList();
  EXPECT_EQ(FindCell(View, "Roma", {}), Cell());
}

TEST_F(GridText, CellsFollowEachOtherRoundTheGrid) {
  struct Row {
    GridCell cell;
    GridCell next;
  };
  const Row rows[] = {{{0, 0}, {0, 1}}, {{0, 2}, {1, 0}}, {{2, 1}, {2, 2}}, {{2, 2}, {0, 0}}};
  for (const Row& row : rows) {
    EXPECT_EQ(NextCell(View, row.cell, FindDirection::Forward), row.next);
    EXPECT_EQ(NextCell(View, row.next, FindDirection::Backward), row.cell);
  }
}

TEST_F(GridText, RowsAreLinesWithTabs) {
  const std::size_t all[] = {0, 1, 2};
  EXPECT_EQ(RowsAsText(View, all),
            "Roma/Fiumicino\tItaly\t001\n"
            "Genève\tSwitzerland\t002\n"
            "Parma\t\t003\n");
  const std::size_t one[] = {2};
  EXPECT_EQ(RowsAsText(View, one), "Parma\t\t003\n");
  EXPECT_EQ(RowsAsText(View, {}), "");
}

}  // namespace
}  // namespace zg::test
