#include "accessories/morse.h"

#include <gtest/gtest.h>

#include <set>

#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

struct MorseCase {
  std::string_view text;
  std::string_view morse;
};

constexpr MorseCase kCases[] = {
    {"", ""},
    {"Ahoj", ".-/..../---/.---/"},
    {"CH", "----/..../"},
    {"Chata", "----/..../.-/-/.-/"},
    {"\xC8h", "----/..../"},  // Čh: the mark is gone before the look ahead
    {"c", "-.-./"},
    {"cc", "-.-./-.-./"},
    {"a b", ".-/-..-./-.../"},
    {"/", "-..-./"},
    {"3.1", "...--///.----/"},
    {"1+1", ".----/+.----/"},
    {"!\r\n;", "!\r\n;"},
    {"\xF9\xDD\xDF", "..-/-.--/\xDF"},  // ů Ý ß
    {",\":-?)(", ".-.-.-/.----./---.../-....-/..--../-.--.-/-.--.-/"},
    {"abcdefgijklm", ".-/-.../-.-./-.././..-./--./../.---/-.-/.-../--/"},
    {"nopqrstuvwxyz", "-./---/.--./--.-/.-./.../-/..-/...-/.--/-..-/-.--/--../"},
    {"1234567890", ".----/..---/...--/....-/...../-..../--.../---../----./-----/"},
};

TEST(Morse, Encodes) {
  for (const MorseCase& c : kCases) EXPECT_EQ(TextToMorse(c.text), c.morse) << c.text;
}

TEST(Morse, MenusHaveOneNameForEachItemAndTheirOwnSigns) {
  std::set<std::string_view> names;
  std::size_t items = 0;
  for (const MorseMenu& menu : MorseMenus()) {
    for (const MorseItem& item : menu.items) {
      names.insert(item.name);
      ++items;
      EXPECT_TRUE(item.sign.ends_with('/')) << item.name;
    }
  }
  EXPECT_EQ(items, 27u + 10u + 7u + 9u + 10u);
  EXPECT_EQ(names.size(), items);
  // Letters and digits agree with the encoder, whole menus of them.
  for (const MorseMenu& menu : MorseMenus().first(2))
    for (const MorseItem& item : menu.items)
      EXPECT_TRUE(item.name == "mnuCH" || item.sign == TextToMorse(item.caption)) << item.name;
}

TEST(Morse, CommandRewritesTheSelection) {
  ScriptedPlatform platform;
  WholeEditor editor(platform);
  editor.text.SetText("x sos y");
  editor.commands.Run("mnuMakeMorse");  // nothing selected: nothing changes
  EXPECT_EQ(editor.text.Text(), "x sos y");
  platform.TakeCalls();
  editor.text.Select(2, 5);
  editor.commands.Run("mnuMakeMorse");
  EXPECT_EQ(editor.text.Text(), "x .../---/.../ y");
  EXPECT_EQ(editor.text.Caret(), 14u);
  EXPECT_FALSE(editor.text.HasSelection());
  EXPECT_EQ(platform.TakeCalls(), (std::vector<std::string>{"busy 1", "busy 0"}));
  // Texts beyond 32,767 characters are rewritten whole.
  editor.text.SetText(std::string(40000, 'e'));
  editor.text.Select(0, 40000);
  editor.commands.Run("mnuMakeMorse");
  EXPECT_EQ(editor.text.Size(), 80000u);
}

}  // namespace
}  // namespace pelmar
