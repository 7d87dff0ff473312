// The checkpoint: a copy of the document in the note that is on show. It has no store of its own.
#pragma once

#include "platform/platform.h"
#include "text/text_buffer.h"

namespace pelmar {

// The note takes the document's text, and what it held is gone. A document too long for a note is refused with a
// message.
void SaveCheckpoint(const TextBuffer& document, TextBuffer& note, Platform& platform);

// The document takes the note's text after a question; an empty note asks nothing and does nothing.
void RestoreCheckpoint(const TextBuffer& note, TextBuffer& document, Platform& platform);

}  // namespace pelmar
