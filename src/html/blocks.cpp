#include "html/blocks.h"

#include "html/attributes.h"
#include "shell/common.h"
#include "text/codepage.h"
#include "text/index.h"

namespace pelmar {
namespace {

// For example ` ALIGN = "LEFT"`, with the leading blank. "" for kNone.
std::string SpacedAlign(Align align) {
  static constexpr std::string_view kValues[] = {"", "LEFT", "CENTER", "RIGHT"};
  if (align == Align::kNone) return {};
  return " ALIGN = " + Quoted(kValues[IndexOf(align)]);
}

std::string SpacedWidth(std::string_view width) { return " Width = " + Quoted(width); }

Wrapping WrappingWithBlanks(const std::string& open, const std::string& close, std::string_view sample) {
  return {open + " ", " " + close, std::string(sample)};
}

}  // namespace

Wrapping Paragraph(Align align) {
  return WrappingWithBlanks("<P" + SpacedAlign(align) + " >", "</P>", "Odstavcový text"_w);
}

Wrapping Heading(const HeadingSpec& spec) {
  const std::string tag = "H" + std::string(LeftTrimmed(spec.size));
  const std::string wrap = spec.no_wrap ? " NOWRAP" : "";
  return WrappingWithBlanks("<" + tag + wrap + SpacedAlign(spec.align) + ">", "</" + tag + ">", "Nadpisový text"_w);
}

Wrapping Font(const FontSpec& spec) {
  std::string open = "<FONT";
  if (spec.size) open += Attribute("SIZE", std::to_string(*spec.size));
  open += Attribute("FACE", spec.face);
  open += Attribute("COLOR", spec.color);
  open += ">";
  // required: the sample has a blank at each end, but a selected text gets no blanks
  return {open, "</FONT>", std::string(" fontové písmo "_w)};
}

std::string HorizontalRule(const RuleSpec& spec) {
  std::string rule = "<HR" + SpacedAlign(spec.align);
  if (spec.no_shade) rule += " NOSHADE";
  if (spec.width) rule += SpacedWidth(LeftTrimmed(*spec.width));
  return rule + ">";
}

std::string LinedHeading(std::string_view text) {
  const std::string width = SpacedWidth("60%") + ">";
  return "<HR" + SpacedAlign(Align::kLeft) + width + "<H2>" + std::string(text) + "</H2><HR" +
         SpacedAlign(Align::kRight) + width;
}

std::string TableHeading(std::string_view text) {
  std::string table(R"(<table border="0" width="100%">)");
  table.append(kCrLf).append(R"(<tr><td width="33%"><hr></td><td align="center">)").append(text);
  return table.append(R"(</td><td width="33%"><hr></td></tr>)").append(kCrLf).append("</table>");
}

std::string Fraction(std::string_view numerator, std::string_view denominator) {
  std::string fraction("<SUP>");
  return fraction.append(numerator).append("</SUP>/<SUB>").append(denominator).append("</SUB>");
}

std::string CommentText(std::string_view text) {
  std::string comment("<! ");  // required: this is no valid HTML comment
  return comment.append(text).append(" >");
}

std::string CharacterReference(int code) { return "&#" + std::to_string(code) + ";"; }

std::string Smiley(const std::array<std::string, 5>& parts) {
  std::string smiley;
  for (const std::string& part : parts) smiley += part;
  return std::string(Trimmed(smiley));
}

void PutDoctype(TextBuffer& buffer, std::string_view line) {
  buffer.Replace(0, 0, std::string(line).append(kCrLf));
  buffer.SetSelStart(0);
}

}  // namespace pelmar
