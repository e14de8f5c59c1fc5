// The menus of the main window as data: what stands under what, in which order, and with which
// caption until a label file gives another.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace zg {

enum class MenuKind : unsigned char {
  Menu,       // opens a submenu
  Command,    // does something; grey as long as nothing is bound to it
  Check,      // a command with a check mark
  Separator,  // a line; it has a name where code hides it
};

struct MenuEntry {
  MenuKind Kind;
  std::string_view Parent;  // name of the menu that it stands in; empty for the menu bar
  std::string_view Name;
  std::string_view Caption;   // with "&" ahead of the letter that chooses it
  std::string_view Shortcut;  // as "Ctrl+O"; empty for none
  // A control array: so many entries of one name, of which member n has the time of day n * Step
  // hours as its caption.
  int Members = 1;
  int Step = 0;
};

// All entries, each behind the menu that it stands in.
std::span<const MenuEntry> MenuTree() noexcept;

// Name of a member of a control array, "mnuTaf(2)", from 0.
std::string MemberName(std::string_view name, int index);

}  // namespace zg
