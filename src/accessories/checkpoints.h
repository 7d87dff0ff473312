// The checkpoint copies the document into the notes page on show, and back.
#pragma once

#include "platform/platform.h"
#include "text/text_buffer.h"

namespace pelmar {

// Replaces the note by the document. A document that is too long for a note is refused with a message.
void SaveCheckpoint(const TextBuffer& document, TextBuffer& note, Platform& platform);

// Replaces the document by the note after a question. An empty note does nothing.
void RestoreCheckpoint(const TextBuffer& note, TextBuffer& document, Platform& platform);

}  // namespace pelmar
