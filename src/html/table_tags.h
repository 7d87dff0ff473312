// The tags of one row and one cell of a table, for hand-written tables and for the cells of the table builder. Texts
// are Windows-1250, written as they are; numbers come as their labels show them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/text_buffer.h"

namespace pelmar {

enum class CellAlign { kLeft, kCenter, kRight, kCharacter };
enum class CellVAlign { kTop, kMiddle, kBottom };

// What is switched off is absent.
struct CellAlignment {
  std::optional<CellAlign> align = std::nullopt;
  std::string character = {};  // with kCharacter; an empty one isn't written
  std::optional<CellVAlign> valign = std::nullopt;
};

struct RowSpec {
  CellAlignment alignment = {};
  int cells = 1;
};

struct CellSpec {
  bool header = false;
  CellAlignment alignment = {};
  std::optional<std::string> bgcolor = std::nullopt;
  std::optional<std::string> colspan = std::nullopt;
  std::optional<std::string> rowspan = std::nullopt;
  bool nowrap = false;
  std::optional<std::string> width = std::nullopt;
};

std::string RowTag(const RowSpec& spec);
std::string CellTag(const CellSpec& spec);

// The attributes of an opening tag whose name has two letters, with the blank before the first; "" where it has none.
std::string TagAttributes(std::string_view tag);

// A row with its numbered cells at the caret; a selection stays behind it.
void InsertRow(TextBuffer& document, const RowSpec& spec);

// A cell around the selection, or one with a sample text.
void WrapInCell(TextBuffer& document, const CellSpec& spec);

}  // namespace pelmar
