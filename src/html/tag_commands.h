// The commands that insert text without a dialog: tags around the selection, fixed texts, date, time and the user's
// address. Texts are Windows-1250 and are not escaped.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shell/settings_record.h"

namespace pelmar {

struct Editor;

// A command that puts the selection, or `sample` if nothing is selected, between two tags.
struct TagWrapper {
  std::string_view command;
  std::string_view open;
  std::string_view close;
  std::string_view sample;
};
std::span<const TagWrapper> TagWrappers();

// A command that inserts a fixed text.
struct FixedInsert {
  std::string_view command;
  std::string_view text;
};
std::span<const FixedInsert> FixedInserts();

// "11-24-2026" and "09:05:00", in any regional format of the system.
std::string DateText(const LocalTime& time);
std::string TimeText(const LocalTime& time);

// "name" <address>
std::string EmailText(const SettingsRecord& settings);

void AddTagCommands(Editor& editor);

}  // namespace pelmar
