// The page test: removes tags from a text, opens the document in another program, and provides the page for the
// internal browser. A document without a path is written to a new temporary file, which only its owner can read and
// which is never deleted.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shell/editor.h"

namespace pelmar {

// The text outside of "<" to ">". required: a "<" without ">" removes the rest of the text, and comments and scripts
// are not recognised.
std::string StripHtml(std::string_view text);

// How the temporary page ends: with one more line break, or as the text ends.
enum class PageEnd { kLineBreak, kAsItIs };

// The file for the internal browser: the saved document without unsaved changes, or a new temporary page. Nothing,
// after a message, if the page can't be written.
std::optional<std::string> PageToShow(Editor& editor, PageEnd end);

// The commands "Odstraň HTML" and "Testuj html".
void AddPageTestCommands(Editor& editor);

}  // namespace pelmar
