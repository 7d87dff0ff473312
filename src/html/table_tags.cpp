#include "html/table_tags.h"

#include "html/attributes.h"
#include "shell/common.h"
#include "text/codepage.h"
#include "text/index.h"
#include "text/insert.h"

namespace pelmar {
namespace {

constexpr std::string_view kCellAligns[] = {"LEFT", "CENTER", "RIGHT", "CHAR"};
constexpr std::string_view kVAligns[] = {"TOP", "MIDDLE", "BOTTOM"};
constexpr std::string_view kSample = "Buňka"_w;
constexpr std::size_t kBareTag = 4;    // "<TR>"
constexpr std::size_t kNameInTag = 3;  // "<TR"

std::string Attributes(const CellAlignment& alignment) {
  std::string attributes;
  if (alignment.align) {
    attributes += Attribute("ALIGN", kCellAligns[IndexOf(*alignment.align)]);
    if (alignment.align == CellAlign::kCharacter && !alignment.character.empty())
      attributes += Attribute("CHAR", alignment.character);
  }
  if (alignment.valign) attributes += Attribute("VALIGN", kVAligns[IndexOf(*alignment.valign)]);
  return attributes;
}

}  // namespace

std::string RowTag(const RowSpec& spec) { return "<TR" + Attributes(spec.alignment) + '>'; }

std::string CellTag(const CellSpec& spec) {
  std::string tag(spec.header ? "<TH" : "<TD");
  tag += Attributes(spec.alignment);
  tag += Attribute("BGCOLOR", spec.bgcolor);
  tag += Attribute("COLSPAN", spec.colspan);
  tag += Attribute("ROWSPAN", spec.rowspan);
  if (spec.nowrap) tag += " NOWRAP";
  tag += Attribute("WIDTH", spec.width);
  return tag += '>';
}

std::string TagAttributes(std::string_view tag) { return std::string(tag.substr(kNameInTag, tag.size() - kBareTag)); }

void InsertRow(TextBuffer& buffer, const RowSpec& spec) {
  std::string row = RowTag(spec);
  for (int cell = 1; cell <= spec.cells; ++cell) {
    row += "<TD>";
    row += kSample;
    row += std::to_string(cell) + "</TD>";
  }
  row += "</TR>";
  InsertAtCaret(buffer, row += kCrLf);
}

void WrapInCell(TextBuffer& buffer, const CellSpec& spec) {
  WrapSelection(buffer, CellTag(spec), spec.header ? "</TH>" : "</TD>", kSample);
}

}  // namespace pelmar
