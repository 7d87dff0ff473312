// The checkpoint copies the document into the selected notes page, and back.
#pragma once

#include "platform/platform.h"
#include "text/text_buffer.h"

namespace pelmar {

// Replaces the note by the document. A message refuses a document that is too long for a note.
void SaveCheckpoint(const TextBuffer& document, TextBuffer& note, Platform& platform);

// Asks, and after Yes replaces the document by the note. Does nothing if the note is empty.
void RestoreCheckpoint(const TextBuffer& note, TextBuffer& document, Platform& platform);

}  // namespace pelmar
