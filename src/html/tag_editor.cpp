#include "html/tag_editor.h"

#include <algorithm>
#include <cerrno>

#include "html/attributes.h"
#include "platform/runtime_error.h"
#include "shell/common.h"
#include "text/codepage.h"
#include "text/insert.h"

namespace pelmar {
namespace {

constexpr char kMarker = "˙"_w[0];
constexpr std::string_view kNoTag = "Není tag!";

// At most `count` characters from `from` on. A negative count throws RuntimeError, so the analysis fails.
std::string_view Middle(std::string_view text, std::size_t from, std::ptrdiff_t count) {
  if (count < 0) throw RuntimeError(EINVAL, "záporná délka textu");
  return text.substr(std::min(from, text.size()), static_cast<std::size_t>(count));
}

// required: `find` becomes kMarker and then `with`, so a kMarker that was already in the text becomes `with` too
std::string ReplacedByMarker(std::string_view text, std::string_view find, std::string_view with) {
  const std::string_view marker(&kMarker, 1);
  return ReplaceAllText(ReplaceAllText(text, find, marker), marker, with);
}

void CollapseBlanks(std::string& text) {
  text.erase(std::unique(text.begin(), text.end(), [](char left, char right) { return left == ' ' && right == ' '; }),
             text.end());
}

bool HasEquals(std::string_view text) { return text.find('=') != std::string_view::npos; }

// Removes repeated blanks and the blanks around "=". Then puts one quote after each "=" and one before each blank.
std::string Reformatted(std::string attributes) {
  CollapseBlanks(attributes);
  attributes = ReplacedByMarker(attributes, " =", "=");
  attributes = ReplacedByMarker(attributes, "= ", "=");
  attributes = ReplacedByMarker(attributes, "\" ", " ");
  attributes = ReplacedByMarker(attributes, " ", "\" ");  // required: even blanks in a quoted value
  attributes = ReplacedByMarker(attributes, "=\"", "=");
  return ReplacedByMarker(attributes, "=", "=\"");  // required: even "=" in a value
}

// Splits the attributes at their blanks. The first piece and each piece with "=" start a new part. Each other piece is
// appended to the part before it.
std::vector<std::string> SplitAttributes(std::string_view attributes) {
  std::vector<std::string> tag_parts;
  for (std::size_t from = 0; from < attributes.size();) {
    const std::size_t end = std::min(attributes.find(' ', from), attributes.size());
    const std::string_view piece = attributes.substr(from, end - from);
    if (tag_parts.empty() || HasEquals(piece)) {
      tag_parts.emplace_back(piece);
    } else {
      // The part ends in the quote that Reformatted() put before the blank. The part goes on, so remove this quote.
      std::string& front = tag_parts.back();
      front.pop_back();
      front.append(" ").append(piece);
    }
    from = end + 1;
  }
  return tag_parts;
}

class Analyser {
 public:
  Analyser(std::string_view text, std::size_t sel_start) : text_(text), sel_start_(sel_start) {}

  TagAnalysis Run() {
    try {
      Analyse();
    } catch (const RuntimeError&) {
      result_.failed_in = tag_step_;
    }
    return std::move(result_);
  }

 private:
  void Analyse() {
    tag_step_ = "Hledání tagu";
    if (!FindTag()) return;
    tag_step_ = "Přeformátování";
    const std::size_t blank = TakeName();
    if (blank == std::string_view::npos) return;
    const auto count =
        static_cast<std::ptrdiff_t>(tag_.size() - blank) - 2;  // without the blank and the last character
    const std::string attributes = Reformatted(std::string(Middle(tag_, blank + 1, count)) + ' ');
    tag_step_ = "Analýza";
    const std::vector<std::string> tag_parts = SplitAttributes(attributes);
    tag_step_ = "Přepis";
    for (const std::string& part : tag_parts) FillRow(part);
  }

  // required: takes the last "<" at or before sel_start_, even if a ">" stands between them
  bool FindTag() {
    const std::size_t start = text_.rfind('<', sel_start_);
    if (start == std::string_view::npos || text_.find('>', text_.find('<')) == std::string_view::npos) return false;
    result_.has_tag = true;
    start_ = start;
    const std::size_t end = text_.find('>', start);
    tag_ = text_.substr(start, end == std::string_view::npos ? end : end - start + 1);
    return true;
  }

  // Stores the name and the range of the tag. Returns the position of the first blank in the tag, npos if there is no
  // blank.
  std::size_t TakeName() {
    const std::size_t blank = tag_.find(' ');
    const std::string_view name = blank == std::string_view::npos
                                      ? Middle(tag_, 1, static_cast<std::ptrdiff_t>(tag_.size()) - 2)
                                      : tag_.substr(1, blank - 1);
    result_.name = Trimmed(name);
    result_.range = TagRange{start_, tag_.size()};
    return blank;
  }

  void FillRow(const std::string& part) {
    AttributeLists& lists = result_.attributes;
    const std::size_t equals = part.find('=');
    if (equals == std::string::npos) {
      lists.names.push_back(part);
      std::erase(lists.names.back(), kQuote[0]);
      lists.values.emplace_back("True");
      return;
    }
    lists.names.push_back(part.substr(0, equals));
    lists.values.emplace_back(
        Middle(part, equals + 2, static_cast<std::ptrdiff_t>(part.size()) - static_cast<std::ptrdiff_t>(equals) - 3));
  }

  std::string_view text_;
  std::size_t sel_start_;
  std::string_view tag_step_ = "Init";  // named in the message of a failure
  std::size_t start_ = 0;
  std::string_view tag_;
  TagAnalysis result_;
};

}  // namespace

TagAnalysis AnalyseTag(std::string_view text, std::size_t sel_start) { return Analyser(text, sel_start).Run(); }

TagAnalysis OpenTag(TextBuffer& buffer, Platform& platform) {
  TagAnalysis analysis = AnalyseTag(buffer.Text(), buffer.SelStart());
  if (!analysis.has_tag) platform.Message(MessageType::kOk, kNoTag, "EdiTag");
  if (analysis.range) buffer.Select(analysis.range->start, analysis.range->start + analysis.range->length);
  if (!analysis.failed_in.empty()) {
    std::string message = "Došlo k chybě při zpracování tagu. Ujistěte se, že se jedná o html tag ve správném formátu";
    message.append(kCrLf).append("Kód chyby: ").append(analysis.failed_in);
    platform.Message(MessageType::kOk, message, "EdiTag");
  }
  return analysis;
}

std::string AttributesText(const AttributeLists& attributes) {
  std::string text;
  for (std::size_t row = 0; row < attributes.names.size(); ++row)
    text += Attribute(attributes.names[row], row < attributes.values.size() ? attributes.values[row] : std::string());
  return text;
}

std::string TagText(std::string_view name, const AttributeLists& attributes) {
  std::string text("<");
  return text.append(name).append(AttributesText(attributes)).append(">");
}

bool AddAttributes(TextBuffer& buffer, const AttributeLists& attributes, Platform& platform) {
  const std::size_t caret = buffer.SelStart();
  if (caret == 0) {
    platform.Message(MessageType::kOk, "Na úplný začátek textu atributy vložit nelze. Posuňte kurzor do tagu.",
                     "Atribut");
    return false;
  }
  const std::size_t place = buffer.Text().find('>', caret - 1);
  if (place == std::string::npos) {
    platform.Message(MessageType::kOk, "Za kurzorem už žádný tag nekončí. Posuňte kurzor do tagu nebo před něj.",
                     "Atribut");
    return false;
  }
  buffer.SetSelStart(place);
  buffer.ReplaceSelection(AttributesText(attributes));
  return true;
}

void InsertCustomTag(TextBuffer& buffer, const CustomTag& tag) {
  const std::string open = TagText(tag.name, tag.attributes);
  if (!tag.closed) return InsertAtCaret(buffer, open);
  WrapSelection(buffer, open, "</" + tag.name + ">", "Vlastní tag"_w);
}

}  // namespace pelmar
