// HTML lists: from collected items, from pairs of term and definition, and from the lines of the selection.
// Texts are Windows-1250, written without escaping.
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
  std::optional<std::size_t> type;  // from 0, in the order of the kind's options; none is written beyond them
  bool compact = false;
  std::optional<std::string> heading;
  std::vector<std::string> items;
};
std::string BuildList(const ListSpec& spec);

// As many rows as the longer of both has; what is missing is empty.
std::string BuildDefinitionList(const std::vector<std::string>& terms, const std::vector<std::string>& definitions);

// The lines of a text as items of a list. required: the last character isn't copied.
std::string ListOfLines(std::string_view text, ListKind kind);

// mnu_HTML_sel_list and mnu_HTML_sel_num_list.
void AddListCommands(Editor& editor);

}  // namespace pelmar
