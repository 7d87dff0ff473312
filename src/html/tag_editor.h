// Reading a tag back from the text and writing it again, without a parser: the grammar is what a fixed row of text
// rewritings makes of the tag. required: its oddities are relied on, so the steps keep their order and their effect,
// though they are written to take linear time. Positions count from 0, texts are Windows-1250.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "text/text_buffer.h"

namespace pelmar {

// Names and values as the two lists of a window hold them: row i belongs to row i, but one may be longer.
struct AttributeLists {
  std::vector<std::string> names;
  std::vector<std::string> values;
  bool operator==(const AttributeLists&) const = default;
};

// How far an analysis has come.
enum class TagStep { kInit, kSearch, kReformat, kSplit, kFill };
std::string_view TagStepName(TagStep step);  // UTF-8

struct TagRange {
  std::size_t start = 0;
  std::size_t length = 0;
  bool operator==(const TagRange&) const = default;
};

// What became of an analysis; after a failure, what was filled until then.
struct TagAnalysis {
  bool has_tag = false;           // "<" at or before the character behind the caret, and ">" somewhere behind the first
  std::optional<TagRange> range;  // what the editor has to select
  std::string name;
  AttributeLists attributes;
  std::optional<TagStep> failed_in;
};

// Takes the tag around the caret apart; `sel_start` is the start of the selection.
TagAnalysis AnalyseTag(std::string_view text, std::size_t sel_start);

// The same for the text of the editor: selects the tag, and tells the person where there is none or it failed.
TagAnalysis OpenTag(TextBuffer& document, Platform& platform);

// A blank, name, "=" and quoted value for each name; a value that is missing is empty.
std::string AttributesText(const AttributeLists& attributes);

// <name attributes>
std::string TagText(std::string_view name, const AttributeLists& attributes);

// Puts attributes into the tag that closes behind the caret: before the first ">" from the character in front of the
// caret on. Where there is none, or no such character, it tells the person, changes nothing and returns false.
bool AddAttributes(TextBuffer& document, const AttributeLists& attributes, Platform& platform);

struct CustomTag {
  std::string name;
  AttributeLists attributes;
  bool closed = true;
};

// An open tag goes in at the caret, a closed one around the selection or a sample.
void InsertCustomTag(TextBuffer& document, const CustomTag& tag);

}  // namespace pelmar
