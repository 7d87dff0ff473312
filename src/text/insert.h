// How the commands of menus and dialogs put text into a box, besides its own ReplaceSelection: at the caret, around the
// selection or in the place of all. Texts are Windows-1250, written without any escaping.
#pragma once

#include <string_view>

#include "text/text_buffer.h"

namespace pelmar {

// Collapses the selection to its start and inserts there. What was selected stays, behind the new text.
void InsertAtCaret(TextBuffer& box, std::string_view text);

// `open` and `close` around the selection, or `sample` at the caret where nothing is selected.
void WrapSelection(TextBuffer& box, std::string_view open, std::string_view close, std::string_view sample);

// Another text in the place of the whole one, with the caret at its start: for commands that overwrite a document
// without a question. One step of undo brings the old text back.
void ReplaceDocument(TextBuffer& box, std::string_view text);

}  // namespace pelmar
