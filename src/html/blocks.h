// The HTML fragments that the small dialogs insert: paragraphs, headings, fonts, lines, fractions, comments, character
// references, smileys and the document type. Texts are Windows-1250 and are not escaped. required: blanks around some
// "=", "Width" in mixed case, and the lower-case tags of TableHeading.
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
  std::string size;  // may begin with blanks
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
  std::optional<std::string> width;  // may begin with blanks
};
std::string HorizontalRule(const RuleSpec& spec);

std::string LinedHeading(std::string_view text);
std::string TableHeading(std::string_view text);
std::string Fraction(std::string_view numerator, std::string_view denominator);
std::string CommentText(std::string_view text);
std::string CharacterReference(int code);

// The five parts of a smiley, joined. Blanks at the start and the end of the smiley are removed.
std::string Smiley(const std::array<std::string, 5>& parts);

// Inserts the line as the first line of the document, and puts the caret before this line.
void PutDoctype(TextBuffer& buffer, std::string_view line);

}  // namespace pelmar
