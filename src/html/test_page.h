// The page test: removes tags from a text, opens the document's file in another program, and provides the page for the
// internal browser. If the document's own file isn't used, the document is written to a new temporary file. Only the
// user who runs the program can read this file, and the program never deletes it. required: the page test writes the
// temporary file, but opens a file of another name.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shell/editor.h"

namespace pelmar {

// The text without each part from a "<" to the next ">". required: a "<" without ">" removes the rest of the text, and
// comments and scripts are not recognised.
std::string StripHtml(std::string_view text);

// How the temporary page ends: with one more line break, or as the text ends.
enum class PageEnd { kLineBreak, kAsItIs };

// The path of the page for the internal browser: the document's file, even if the document has unsaved changes. A
// document without a path is written to a new temporary page. If this page can't be written, shows a message and
// returns nothing.
std::optional<std::string> PageToShow(Editor& editor, PageEnd end);

// The commands "Odstraň HTML" and "Testuj html".
void AddPageTestCommands(Editor& editor);

}  // namespace pelmar
