// The commands of the menu "Vlož" that insert a character, the date, the time or the person's name and e-mail address.
// Texts are Windows-1250.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shell/settings_record.h"

namespace pelmar {

struct Editor;

struct FixedInsert {
  std::string_view command;
  std::string_view text;
};
// Adds a command for each element. `inserts` must outlive the commands.
void AddFixedInserts(Editor& editor, std::span<const FixedInsert> inserts);

// Texts like "11-24-2026" and "09:05:00". They don't depend on the regional settings of the system.
std::string DateText(const LocalTime& time);
std::string TimeText(const LocalTime& time);

// The person's name and e-mail address: "name" <address>.
std::string EmailText(const SettingsRecord& settings);

void AddInsertCommands(Editor& editor);

}  // namespace pelmar
