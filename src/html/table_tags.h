// The tags of a row and of a cell, for tables written by hand and for the table builder. Texts are Windows-1250 and are
// not escaped. Numbers in attributes are texts, as the labels of the dialogs show them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/text_buffer.h"

namespace pelmar {

enum class CellAlign { kLeft, kCenter, kRight, kCharacter };
enum class CellVAlign { kTop, kMiddle, kBottom };

// An optional field has no value if its check box in the dialog is off.
struct CellAlignment {
  std::optional<CellAlign> align = std::nullopt;
  std::string character = {};  // for kCharacter; not written if empty
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

// The attributes in an opening tag whose name has two letters, with the blank before the first attribute. "" if there
// are no attributes.
std::string TagAttributes(std::string_view tag);

// Inserts a row of numbered cells before the selection. The selected text stays, but is no longer selected.
void InsertRow(TextBuffer& buffer, const RowSpec& spec);

// Puts the selection, or a sample if nothing is selected, into a cell.
void WrapInCell(TextBuffer& buffer, const CellSpec& spec);

}  // namespace pelmar
