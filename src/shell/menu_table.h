// The main menu as a table in display order, the buttons of the toolbar, and the groups of items that depend on
// MenuState. Captions and tips are UTF-8. In captions "&" marks an access key, and "&&" is a plain "&". The name of an
// item, or the key of a button, is also the name of its command.
#pragma once

#include <span>
#include <string_view>

namespace pelmar {

enum class MenuKind { kCommand, kSubmenu, kSeparator, kToggleOn, kToggle };

struct MenuItem {
  int level;  // 0 for the menu bar
  std::string_view name;
  std::string_view caption;
  std::string_view shortcut = {};
  MenuKind kind = MenuKind::kCommand;
};
std::span<const MenuItem> MenuItems();

struct ToolbarButton {
  std::string_view key;
  std::string_view tip;
  std::string_view picture;  // the name of the picture file without ".svg"
  bool separator_after = false;
};
std::span<const ToolbarButton> ToolbarButtons();

// The font sizes of the editor, each with its menu item.
struct FontSizeItem {
  int points;
  std::string_view item;
};
std::span<const FontSizeItem> FontSizeItems();

// The state that enables or disables menu items.
struct MenuState {
  bool has_path = false;
  bool has_clipboard = false;
  bool has_text = false;
  bool has_selection = false;
  bool operator==(const MenuState&) const = default;
};

// The menu items that each field of MenuState enables.
std::span<const std::string_view> ItemsOfPath();
std::span<const std::string_view> ItemsOfClipboard();
std::span<const std::string_view> ItemsOfText();
std::span<const std::string_view> ItemsOfSelection();

}  // namespace pelmar
