// The main menu as a table in display order, the toolbar's keys, and the groups of items that follow the state of the
// text. Captions and tips are UTF-8 and carry their access keys; a command is known by its item's name or its key.
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
  std::string_view picture;  // the name of its picture file
  bool separator_behind = false;
};
std::span<const ToolbarButton> ToolbarButtons();

// The sizes that the editor's font can have, in points, by their items.
struct FontSizeItem {
  int points;
  std::string_view item;
};
std::span<const FontSizeItem> FontSizeItems();

// What the enabling of menu items depends on.
struct MenuState {
  bool has_path = false;
  bool has_clipboard = false;
  bool has_text = false;
  bool has_selection = false;
  bool operator==(const MenuState&) const = default;
};

// The items that each part of the state enables.
std::span<const std::string_view> ItemsOfPath();
std::span<const std::string_view> ItemsOfClipboard();
std::span<const std::string_view> ItemsOfText();
std::span<const std::string_view> ItemsOfSelection();

}  // namespace pelmar
