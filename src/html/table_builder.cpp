#include "html/table_builder.h"

#include <string_view>

#include "html/attributes.h"
#include "shell/common.h"
#include "text/index.h"

namespace pelmar {
namespace {

constexpr std::string_view kTableAligns[] = {"LEFT", "CENTER", "RIGHT"};
constexpr std::string_view kFrames[] = {"NONE", "ABOVE", "BELOW", "HSIDES", "LHS", "RHS", "VSIDES", "BOX"};
constexpr std::string_view kRules[] = {"NONE", "ROWS", "COLS", "ALL"};
constexpr std::string_view kSides[] = {"TOP", "BOTTOM", "LEFT", "RIGHT"};

std::string OptionalNumber(std::string_view name, const std::optional<std::string>& label) {
  return label ? Attribute(name, LeftTrimmed(*label)) : std::string();
}

std::string OpeningTag(const TableSpec& spec) {
  std::string tag("<TABLE");
  tag += OptionalNumber("WIDTH", spec.width);
  tag += OptionalNumber("COLS", spec.cols);
  tag += Attribute("COLSPEC", spec.colspec);
  if (spec.align) tag += Attribute("ALIGN", kTableAligns[IndexOf(*spec.align)]);
  if (spec.border) {
    tag += Attribute("FRAME", kFrames[IndexOf(spec.border->frame)]);
    tag += Attribute("BORDER", LeftTrimmed(spec.border->thickness));
  }
  if (spec.rules) tag += Attribute("RULES", kRules[IndexOf(*spec.rules)]);
  tag += OptionalNumber("CELLSPACING", spec.cell_spacing);
  tag += OptionalNumber("CELLPADDING", spec.cell_padding);
  return tag += '>';
}

std::string CaptionTag(const TableSpec::Caption& caption) {
  return "<CAPTION" + Attribute("ALIGN", kSides[IndexOf(caption.side)]) + '>' + caption.text + "</CAPTION>";
}

std::string RowOf(const TableGrid& grid, std::size_t row, std::size_t columns) {
  std::string line = "<TR" + grid.row_attrs.at(row) + '>';
  for (std::size_t column = 1; column <= columns; ++column)
    line += "<TD" + grid.cell_attrs.at(column).at(row) + '>' + grid.cell_text.at(column).at(row) + "</TD>";
  return line += "</TR>";
}

}  // namespace

std::string BuildTable(const TableSpec& spec, const TableGrid& grid) {
  std::string table = OpeningTag(spec);
  table += kCrLf;
  if (spec.caption) (table += CaptionTag(*spec.caption)) += kCrLf;
  for (std::size_t row = 1; row <= spec.rows; ++row) (table += RowOf(grid, row, spec.columns)) += kCrLf;
  return table += "</TABLE>";
}

}  // namespace pelmar
