// A whole TABLE, from the fields of its dialog and a grid of 20 by 20 cells. The grid keeps cells outside the table, in
// case the table grows again. Texts are Windows-1250 and are not escaped.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>

namespace pelmar {

// Columns and rows count from 1. Attributes are written directly after "<TD" or "<TR", so they should be empty or begin
// with a blank. BuildTable doesn't check the attributes that the person has typed.
struct TableGrid {
  static constexpr std::size_t kMost = 20;
  using Cells = std::array<std::array<std::string, kMost + 1>, kMost + 1>;

  Cells cell_text;   // by column, then row
  Cells cell_attrs;  // by column, then row
  std::array<std::string, kMost + 1> row_attrs;
};

enum class TableAlign { kLeft, kCenter, kRight };
enum class TableFrame { kNone, kAbove, kBelow, kAboveAndBelow, kLeft, kRight, kLeftAndRight, kBox };
enum class TableRules { kNone, kRows, kColumns, kAll };
enum class CaptionSide { kTop, kBottom, kLeft, kRight };

// An optional field has no value if its check box in the dialog is off. `width`, `cols`, `thickness`, `cell_spacing`
// and `cell_padding` are texts of labels in the dialog: a number, perhaps with a blank before it and, for `width`, with
// "%" after it.
struct TableSpec {
  struct Border {
    TableFrame frame = TableFrame::kNone;
    std::string thickness;
  };
  struct Caption {
    CaptionSide side = CaptionSide::kTop;
    std::string text;
  };

  std::size_t columns = 1;
  std::size_t rows = 1;
  std::optional<std::string> width = std::nullopt;
  std::optional<std::string> cols = std::nullopt;
  std::optional<std::string> colspec = std::nullopt;
  std::optional<TableAlign> align = std::nullopt;
  std::optional<Border> border = std::nullopt;
  std::optional<TableRules> rules = std::nullopt;
  std::optional<std::string> cell_spacing = std::nullopt;
  std::optional<std::string> cell_padding = std::nullopt;
  std::optional<Caption> caption = std::nullopt;
};

// One line for the opening tag, one for the caption if there is a caption, and one for each row. Then "</TABLE>"
// without a line end. `spec` must not have more than kMost columns or rows.
std::string BuildTable(const TableSpec& spec, const TableGrid& grid);

}  // namespace pelmar
