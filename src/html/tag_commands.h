// The commands that write into the text and need no dialog: tag wrappers, fixed inserts, date, time and the user's
// address. Texts are Windows-1250, written without any escaping.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shell/settings_record.h"

namespace pelmar {

struct Editor;

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

void AddTagCommands(Editor& editor);

}  // namespace pelmar
