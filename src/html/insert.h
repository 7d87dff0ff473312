// The three routines through which every command puts text into a box, and the commands that need no dialog: tag
// wrappers, fixed inserts, date, time and the user's address. Texts are Windows-1250, written without any escaping.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shell/settings_record.h"
#include "text/text_buffer.h"

namespace pelmar {

// Text over the selection; the caret stands behind it.
void ReplaceSelection(TextBuffer& box, std::string_view text);

// Collapses the selection to its start and inserts there. What was selected stays, behind the new text.
void InsertAtCaret(TextBuffer& box, std::string_view text);

// `open` and `close` around the selection, or `sample` at the caret where nothing is selected.
void WrapSelection(TextBuffer& box, std::string_view open, std::string_view close, std::string_view sample);

// Another text in the place of the whole one, with the caret at its start: for commands that overwrite a document
// without a question. One step of undo brings the old text back.
void ReplaceDocument(TextBuffer& box, std::string_view text);

// A command of the menu or the toolbar that wraps the selection.
struct TagWrapper {
  std::string_view command;
  std::string_view open;
  std::string_view close;
  std::string_view sample;
};
std::span<const TagWrapper> TagWrappers();

// A command that inserts one fixed text.
struct FixedInsert {
  std::string_view command;
  std::string_view text;
};
std::span<const FixedInsert> FixedInserts();

// "11-24-2026" and "09:05:00", whatever the system's regional format is.
std::string DateText(const LocalTime& time);
std::string TimeText(const LocalTime& time);

// "name" <address>
std::string EmailText(const SettingsRecord& settings);

}  // namespace pelmar
