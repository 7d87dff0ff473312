#include "texttools/column_format.h"

#include <algorithm>

#include "shell/common.h"

namespace pelmar {

SelectedRows RowsOfSelection(std::string_view selected) {
  SelectedRows result{{}, selected.size()};
  std::size_t length = 0;  // the number of read characters of the present line
  const auto add = [&](std::size_t start, std::size_t count) {
    result.rows.emplace_back(selected.substr(start, count));
  };
  for (std::size_t i = 0; i + 1 < selected.size(); ++i) {
    if (selected[i] == '\r') {
      add(i - length, length);
    } else if (selected[i] == '\n') {
      result.shortest = std::min(result.shortest, length);
      length = 0;
    } else {
      ++length;
    }
  }
  if (length == 0) return result;
  add(selected.size() - length - 1, length + 1);
  result.shortest = std::min(result.shortest, length + 1);
  return result;
}

std::size_t ShortestRow(const Rows& rows) {
  const auto shortest = std::ranges::min_element(rows, {}, &std::string::size);
  return shortest == rows.end() ? 0 : shortest->size();
}

void InsertFromStart(Rows& rows, std::size_t distance, std::string_view text) {
  for (std::string& row : rows)
    if (distance <= row.size()) row.insert(distance, text);
}

void InsertFromEnd(Rows& rows, std::size_t distance, std::string_view text) {
  for (std::string& row : rows)
    if (distance <= row.size()) row.insert(row.size() - distance, text);
}

void RemoveFromStart(Rows& rows, std::size_t distance) {
  for (std::string& row : rows) row.erase(std::min(distance, row.size()), 1);
}

void RemoveFromEnd(Rows& rows, std::size_t distance) {
  for (std::string& row : rows)
    if (distance < row.size()) row.erase(row.size() - distance - 1, 1);
}

std::string JoinRows(const Rows& rows) { return JoinLines({rows.begin(), rows.end()}); }

}  // namespace pelmar
