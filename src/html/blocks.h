// What the small block and inline dialogs write: one fragment each, from a plain struct of the dialog's fields.
// required: the blanks around some "=", the mixed case of "Width" and the lower-case tags of TableHeading are output
// that others rely on. Texts are Windows-1250, written without escaping.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "text/insert.h"
#include "text/text_buffer.h"

namespace pelmar {

enum class Align { kNone, kLeft, kCenter, kRight };

Wrapping Paragraph(Align align);

struct HeadingSpec {
  std::string size;  // as shown: blanks may lead
  Align align = Align::kCenter;
  bool no_wrap = false;
};
Wrapping Heading(const HeadingSpec& spec);

struct FontSpec {
  std::optional<int> size;
  std::optional<std::string> face;
  std::optional<std::string> color;
};
Wrapping Font(const FontSpec& spec);

struct RuleSpec {
  Align align = Align::kNone;
  bool no_shade = false;
  std::optional<std::string> width;  // as shown: blanks may lead
};
std::string HorizontalRule(const RuleSpec& spec);

std::string LinedHeading(std::string_view text);
std::string TableHeading(std::string_view text);
std::string Fraction(std::string_view numerator, std::string_view denominator);
std::string CommentText(std::string_view text);
std::string CharacterReference(int code);

// The five parts without the blanks at both ends.
std::string Smiley(const std::array<std::string, 5>& parts);

// The line in front of the whole text; the caret goes to the start.
void PutDoctype(TextBuffer& document, std::string_view line);

}  // namespace pelmar
