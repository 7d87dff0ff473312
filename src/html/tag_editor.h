// Reads a tag from the text into fields and writes the fields back. There is no parser: a fixed sequence of
// replacements prepares the attributes, which are then split at their blanks. required: the order and the oddities of
// the replacements. Positions count from 0, texts are Windows-1250.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "text/text_buffer.h"

namespace pelmar {

// The names and values in the two lists of a window, row by row. One list may be longer.
struct AttributeLists {
  std::vector<std::string> names;
  std::vector<std::string> values;
  bool operator==(const AttributeLists&) const = default;
};

struct TagRange {
  std::size_t start = 0;
  std::size_t length = 0;
  bool operator==(const TagRange&) const = default;
};

// The result of an analysis. After a failure, the result contains only what was read before the failure.
struct TagAnalysis {
  bool has_tag = false;           // the text has a "<" at or before `sel_start`, and a ">" after its first "<"
  std::optional<TagRange> range;  // the place of the tag in the text
  std::string name;
  AttributeLists attributes;
  std::string_view failed_in;  // the Czech name of the step that failed, UTF-8; "" if none failed
};

// Splits the last tag that begins at or before `sel_start` into its name and attributes. `sel_start` is the start of
// the selection.
TagAnalysis AnalyseTag(std::string_view text, std::size_t sel_start);

// Splits the last tag that begins at or before the start of the selection. Selects this tag if the result has a
// `range`. Shows a message if there is no tag or if a step fails.
TagAnalysis OpenTag(TextBuffer& buffer, Platform& platform);

// One Attribute() for each name. A missing value is empty, and a value without a name is left out.
std::string AttributesText(const AttributeLists& attributes);

// For example `<A HREF="text">`.
std::string TagText(std::string_view name, const AttributeLists& attributes);

// Inserts the attributes before the next ">". The search begins one character before the start of the selection. Shows
// a message and returns false if the selection starts at 0 or no ">" is found.
bool AddAttributes(TextBuffer& buffer, const AttributeLists& attributes, Platform& platform);

struct CustomTag {
  std::string name;
  AttributeLists attributes;
  bool closed = true;
};

// Puts an opening and a closing tag around the selection, or around a sample if nothing is selected. If the tag isn't
// `closed`, only inserts the opening tag before the selection.
void InsertCustomTag(TextBuffer& buffer, const CustomTag& tag);

}  // namespace pelmar
