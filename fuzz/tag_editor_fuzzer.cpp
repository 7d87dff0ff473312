// For any text and caret, the tag editor neither crashes nor hangs, and its output changes only the tag. The first
// three bytes of the input are the caret, the rest is the text.
#include <cstddef>
#include <cstdint>
#include <string>

#include "checks.h"
#include "html/tag_editor.h"
#include "text/text_buffer.h"

namespace pelmar {
namespace {

// A tag in the text begins with "<" at or before the character after the caret, and may hold one ">" at its end.
void RequireRange(const std::string& text, std::size_t caret, const TagRange& range) {
  Require(range.length > 0 && range.start <= caret && range.start + range.length <= text.size());
  Require(text[range.start] == '<');
  const std::size_t close = text.find('>', range.start);
  Require(range.start + range.length == (close == std::string::npos ? text.size() : close + 1));
}

void RequireRewrite(const std::string& text, const TagRange& range, const TagAnalysis& analysis) {
  TextBuffer box;
  box.SetText(text);
  box.Select(range.start, range.start + range.length);
  const std::string tag = TagText(analysis.name, analysis.attributes);
  box.ReplaceSelection(tag);
  Require(box.Text() == text.substr(0, range.start) + tag + text.substr(range.start + range.length));
}

void Check(const std::string& text, std::size_t caret) {
  const TagAnalysis analysis = AnalyseTag(text, caret);
  const AttributeLists& lists = analysis.attributes;
  Require(analysis.has_tag || (!analysis.range && analysis.name.empty() && analysis.failed_in.empty()));
  // The lists differ in length only if the analysis failed between a name and its value.
  Require(lists.names.size() == lists.values.size() + (analysis.failed_in == "Přepis" ? 1 : 0));
  if (!analysis.range) return Require(lists.names.empty());
  RequireRange(text, caret, *analysis.range);
  RequireRewrite(text, *analysis.range, analysis);
}

}  // namespace
}  // namespace pelmar

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 3) return 0;
  const std::string text(reinterpret_cast<const char*>(data) + 3, size - 3);
  const std::size_t caret = (data[0] + 256u * data[1] + 65536u * data[2]) % (text.size() + 1);
  pelmar::Check(text, caret);
  return 0;
}
