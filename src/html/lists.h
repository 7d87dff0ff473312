// HTML lists from collected items, from terms and definitions, and from the lines of the selection. Texts are
// Windows-1250 and are not escaped.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pelmar {

struct Editor;

enum class ListKind { kBullets, kNumbers };

struct ListSpec {
  ListKind kind = ListKind::kBullets;
  std::optional<std::size_t> type;  // from 0, in the order of the dialog's options; no TYPE if too large
  bool compact = false;
  std::optional<std::string> heading;
  std::vector<std::string> items;
};
std::string BuildList(const ListSpec& spec);

// Writes a DT and a DD for each item of the longer list. Missing items of the shorter list are empty.
std::string BuildDefinitionList(const std::vector<std::string>& terms, const std::vector<std::string>& definitions);

// A list with each line of the text as an item. required: the last character of the text is lost.
std::string ListOfLines(std::string_view text, ListKind kind);

// Adds the two commands that turn the selected lines into a list.
void AddListCommands(Editor& editor);

}  // namespace pelmar
