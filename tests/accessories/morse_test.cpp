#include "accessories/morse.h"

#include <gtest/gtest.h>

#include <set>

#include "support/scripted_platform.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

TEST(Morse, Encodes) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"Chata CH", "----/..../.-/-/.-/-..-./----/..../"},
      {"\xC8h", "----/..../"},  // Čh: the mark is gone before the look ahead
      {"ccc", "-.-./-.-./-.-./"},
      {"3.1+/", "...--///.----/+-..-./"},
      {"!\r\n;", "!\r\n;"},
      {"\xF9\xDD\xDF", "..-/-.--/\xDF"},  // ů Ý ß
      {",\":-?)(", ".-.-.-/.----./---.../-....-/..--../-.--.-/-.--.-/"},
      {"abcdefgijklm", ".-/-.../-.-./-.././..-./--./../.---/-.-/.-../--/"},
      {"hnopqrstuvwxyz", "..../-./---/.--./--.-/.-./.../-/..-/...-/.--/-..-/-.--/--../"},
      {"1234567890", ".----/..---/...--/....-/...../-..../--.../---../----./-----/"},
  };
  for (const auto& [text, morse] : cases) EXPECT_EQ(TextToMorse(text), morse) << text;
}

TEST(Morse, MenusHaveOneNameForEachItemAndTheirOwnSigns) {
  std::set<std::string_view> names;
  std::size_t items = 0;
  for (const MorseMenu& menu : MorseMenus()) {
    const bool of_letters = &menu < &MorseMenus()[2];  // or of digits: these agree with the encoder
    for (const MorseItem& item : menu.items) {
      names.insert(item.name);
      ++items;
      EXPECT_TRUE(item.sign.ends_with('/')) << item.name;
      EXPECT_TRUE(!of_letters || item.name == "mnuCH" || item.sign == TextToMorse(item.caption)) << item.name;
    }
  }
  EXPECT_EQ(items, 27u + 10u + 7u + 9u + 10u);
  EXPECT_EQ(names.size(), items);
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
}

}  // namespace
}  // namespace pelmar
