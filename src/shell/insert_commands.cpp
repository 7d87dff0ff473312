#include "shell/insert_commands.h"

#include "shell/editor.h"
#include "text/codepage.h"
#include "text/insert.h"
#include "text/number_text.h"

namespace pelmar {
namespace {

constexpr FixedInsert kCharacterInserts[] = {
    {"mnuand", "&"},        {"mnudolar", "$"}, {"mnucross", "#"}, {"mnuSS", "ß"_w}, {"mnuZav", "@"},
    {"mnubackslash", "\\"}, {"mnucop", "©"_w}, {"mnureg", "®"_w}, {"mnutm", "™"_w},
};

}  // namespace

void AddFixedInserts(Editor& e, std::span<const FixedInsert> inserts) {
  for (const FixedInsert& insert : inserts)
    e.commands.Add(insert.command, [&e, &insert] { InsertAtCaret(e.text, insert.text); });
}

std::string DateText(const LocalTime& time) {
  return ZeroPadded(time.month, 2) + "-" + ZeroPadded(time.day, 2) + "-" + ZeroPadded(time.year, 4);
}

std::string TimeText(const LocalTime& time) {
  return ZeroPadded(time.hour, 2) + ":" + ZeroPadded(time.minute, 2) + ":" + ZeroPadded(time.second, 2);
}

std::string EmailText(const SettingsRecord& settings) {
  return "\"" + settings.UserName + "\" <" + settings.UserEmail + ">";
}

void AddInsertCommands(Editor& e) {
  AddFixedInserts(e, kCharacterInserts);
  e.commands.Add("mnudate", [&e] { InsertAtCaret(e.text, DateText(e.platform.Now())); });
  e.commands.Add("mnutime", [&e] { InsertAtCaret(e.text, TimeText(e.platform.Now())); });
  e.commands.Add("mnuemail", [&e] { InsertAtCaret(e.text, EmailText(e.settings)); });
}

}  // namespace pelmar
