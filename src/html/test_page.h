// The page test: the document without its tags, in the system's own program, and as a page for the internal browser.
// A document without a path is written to a new temporary page, which only its owner can read and nobody deletes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shell/editor.h"

namespace pelmar {

// All that stands outside of "<" to ">". required: a "<" without a ">" takes everything to the end, and neither
// comments nor scripts are known.
std::string StripHtml(std::string_view text);

// Whether the temporary page ends in a line break behind the text.
enum class PageEnd { kLineBreak, kAsItIs };

// The file that the internal browser shows: the document's own as it lies on the disk, unsaved changes are not shown,
// or a new temporary page. Nothing where that can't be written; the person has been told then.
std::optional<std::string> PageToShow(Editor& editor, PageEnd end);

// The commands "Odstraň HTML" and "Testuj html".
void AddPageTestCommands(Editor& editor);

}  // namespace pelmar
