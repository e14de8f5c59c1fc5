#include "shell/MenuTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "tables/ReportUnits.h"

namespace zg {
namespace {

const MenuEntry* FindEntry(std::string_view name) {
  const auto tree = MenuTree();
  const auto found =
      std::find_if(tree.begin(), tree.end(), [&](const auto& row) { return row.Name == name; });
  return found == tree.end() ? nullptr : &*found;
}

TEST(MenuTree, EachNameStandsOnceBehindItsMenu) {
  std::set<std::string_view> menus{""};
  std::set<std::string_view> names;
  for (const MenuEntry& entry : MenuTree()) {
    EXPECT_TRUE(menus.contains(entry.Parent)) << entry.Name << " under " << entry.Parent;
    if (!entry.Name.empty()) {
      EXPECT_TRUE(names.insert(entry.Name).second) << entry.Name;
    }
    if (entry.Kind == MenuKind::Menu) menus.insert(entry.Name);
    if (entry.Kind != MenuKind::Separator) {
      EXPECT_EQ(entry.Name.substr(0, 3), "mnu");
      EXPECT_EQ(entry.Caption.empty(), entry.Members > 1) << entry.Name;
    }
  }
}

TEST(MenuTree, NoMenuIsEmptyButTheRecentFiles) {
  std::set<std::string_view> parents;
  for (const MenuEntry& entry : MenuTree()) parents.insert(entry.Parent);
  for (const MenuEntry& entry : MenuTree()) {
    if (entry.Kind != MenuKind::Menu) continue;
    EXPECT_EQ(parents.contains(entry.Name), entry.Name != "mnuRecent") << entry.Name;
  }
}

TEST(MenuTree, UnitsHaveTheirEntries) {
  for (const UnitGroup& group : UnitGroups()) {
    ASSERT_NE(FindEntry(group.Menu), nullptr) << group.Menu;
    EXPECT_EQ(FindEntry(group.Menu)->Parent, "mnuUnit");
    for (const UnitEntry& unit : group.Entries) {
      ASSERT_NE(FindEntry(unit.Menu), nullptr) << unit.Menu;
      EXPECT_EQ(FindEntry(unit.Menu)->Parent, group.Menu);
      EXPECT_EQ(FindEntry(unit.Menu)->Kind, MenuKind::Check);
    }
  }
}

TEST(MenuTree, HoursAreControlArrays) {
  EXPECT_EQ(FindEntry("mnuMetar")->Members, 24);
  EXPECT_EQ(FindEntry("mnuTaf")->Members, 4);
  EXPECT_EQ(FindEntry("mnuTaf")->Step, 6);
  EXPECT_EQ(MemberName("mnuTaf", 3), "mnuTaf(3)");
}

TEST(MenuTree, ShortcutsAreUnique) {
  std::set<std::string_view> shortcuts;
  for (const MenuEntry& entry : MenuTree()) {
    if (!entry.Shortcut.empty()) {
      EXPECT_TRUE(shortcuts.insert(entry.Shortcut).second) << entry.Shortcut;
    }
  }
}

}  // namespace
}  // namespace zg
