#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"
#include "texttools/lines.h"
#include "texttools/transforms.h"

namespace pelmar {
namespace {

TEST(Transforms, ProperCaseAndReverse) {
  EXPECT_EQ(ProperCase("ŽLUŤOUČKÝ kůň\tčeká\r\nna-dvoře. že"_w), "Žluťoučký Kůň\tČeká\r\nNa-dvoře. Že"_w);
  EXPECT_EQ(ProperCase(""), "");
  EXPECT_EQ(Reversed("ab\r\nc"), "c\n\rba");
}

std::vector<std::size_t> OrderWithoutCase(const std::vector<std::string_view>& lines) {
  return ScriptedPlatform().SortedOrder(lines);
}

// The told two-way bubble sort.
std::string BubbleSorted(std::string_view text) {
  std::vector<std::string> entries{""};
  for (const char ch : text) {
    entries.back() += ch;
    if (ch != '\n') continue;
    if (entries.back() == "\r\n") {
      entries.back().clear();
    } else {
      entries.emplace_back();
    }
  }
  if (entries.back().empty()) entries.pop_back();
  const auto greater = [](const std::string& a, const std::string& b) { return ToUpper(a) > ToUpper(b); };
  const int n = static_cast<int>(entries.size());
  const auto at = [&](int i) -> std::string& { return entries[static_cast<std::size_t>(i - 1)]; };
  bool done = n == 0;
  for (int lo = 0; !done; ++lo) {
    done = true;
    const auto test = [&](int i) {
      if (!greater(at(i), at(i + 1))) return;
      std::swap(at(i), at(i + 1));
      done = false;
    };
    for (int i = lo + 1; i <= n - lo - 1; ++i) test(i);
    for (int i = n - lo - 1; i >= lo + 1; --i) test(i);
  }
  return std::accumulate(entries.begin(), entries.end(), std::string());
}

TEST(SortLines, KeepsLineEndsAndDropsBlankLines) {
  EXPECT_EQ(SortLines("b\r\n\r\na\r\n", OrderWithoutCase), "a\r\nb\r\n");
  EXPECT_EQ(SortLines("b\r\na", OrderWithoutCase), "ab\r\n");  // required: the end is missing where it was
  EXPECT_EQ(SortLines("b\n\na\r\n", OrderWithoutCase), "\na\r\nb\n");
  EXPECT_EQ(SortLines("a2\r\nA1\r\na1\r\n", OrderWithoutCase), "A1\r\na1\r\na2\r\n");
  EXPECT_EQ(SortLines("", OrderWithoutCase), "");
  EXPECT_EQ(SortLines("\r\n\r\n", OrderWithoutCase), "");
}

TEST(SortLines, EqualsTheToldBubbleSort) {
  std::mt19937 random(11);
  for (int round = 0; round < 3000; ++round) {
    std::string text;
    for (std::size_t n = random() % 30; n > 0; --n) text += "aAbB\r\n\n"[random() % 7];
    ASSERT_EQ(SortLines(text, OrderWithoutCase), BubbleSorted(text));
  }
}

TEST(NumberLines, LosesTheLastCharacter) {
  EXPECT_EQ(NumberLines("a\r\nb\r\n"), "00001 a\r\n00002 b\r");  // required
  EXPECT_EQ(NumberLines("abc"), "00001 ab");
  EXPECT_EQ(NumberLines("x"), "00001 ");
  std::string many;
  for (int i = 0; i < 100; ++i) many += "\n";
  EXPECT_NE(NumberLines(many).find("\n00100 "), std::string::npos);
}

TEST(WordsToLines, BreaksBehindEachBlank) {
  EXPECT_EQ(WordsToLines("ab cd"), "ab \r\ncd\r\n");
  EXPECT_EQ(WordsToLines("a  b "), "a \r\n \r\nb \r\n");
  EXPECT_EQ(WordsToLines("a\r\nb c"), "a\r\nb \r\nc\r\n");
  EXPECT_EQ(WordsToLines(""), "");
}

struct TextToolsTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};

  void Select(std::string_view text, std::size_t start, std::size_t end) {
    editor.text.SetText(std::string(text));
    editor.text.Select(start, end);
  }
  [[nodiscard]] std::string After(const char* command) {
    editor.commands.Run(command);
    return editor.text.Text();
  }
};

TEST_F(TextToolsTest, TransformsReplaceTheSelection) {
  const struct {
    const char* command;
    std::string_view before, after;
  } cases[] = {
      {"mnusmall", "xŘEKAx"_w, "xřekax"_w},      {"mnubig", "xřekax"_w, "xŘEKAx"_w},
      {"mnupropercase", "xŘEKAx"_w, "xŘekax"_w}, {"mnuprevrat", "xřekax"_w, "xakeřx"_w},
      {"mnuHackyCarky", "xŘekax"_w, "xRekax"_w}, {"mnu_untext", "xřekax"_w, "xřeKAx"_w},
  };
  for (const auto& c : cases) {
    Select(c.before, 1, 5);
    platform.draws = {0.0, 0.49, 0.5, 0.99};
    EXPECT_EQ(After(c.command), c.after) << c.command;
    EXPECT_EQ(editor.text.SelStart(), 5u);
    EXPECT_FALSE(editor.text.HasSelection());
  }
  Select("abc", 1, 1);
  EXPECT_EQ(After("mnubig"), "abc");  // nothing selected, nothing said
  EXPECT_EQ(platform.reseeds, 1);
}

TEST_F(TextToolsTest, LineToolsWorkOnTheSelection) {
  Select("xb\r\na\r\ny", 1, 7);
  EXPECT_EQ(After("Mnu_Sort_Lines"), "xa\r\nb\r\ny");
  Select("a b", 0, 3);
  EXPECT_EQ(After("MnuSelTextDivideWordsToLines"), "a \r\nb\r\n");
  Select("ab", 0, 2);
  EXPECT_EQ(After("mnuEnterLineNumbers"), "00001 a");
  Select("ab", 1, 1);
  platform.answers = {Answer::kOk};
  EXPECT_EQ(After("mnuEnterLineNumbers"), "ab");
  EXPECT_EQ(platform.calls[platform.calls.size() - 2], "message 0 \"Vyber text\" \"Očíslování\"");
  EXPECT_EQ(After("Mnu_Sort_Lines"), "ab");
  EXPECT_EQ(After("MnuSelTextDivideWordsToLines"), "ab");
  EXPECT_EQ(platform.busy, 0);
}

TEST_F(TextToolsTest, CharacterCount) {
  platform.answers = {Answer::kOk, Answer::kOk};
  Select("ab\r\n", 0, 3);
  editor.commands.Run("mnucharcount");
  EXPECT_EQ(platform.calls.back(), "message 0 \"Počet znaků je : 3 celkem.\" \"Znaky\"");
  Select("", 0, 0);
  editor.commands.Run("mnucharcount");
  EXPECT_EQ(platform.calls.back(), "message 0 \"Počet znaků v celém textu je : 0 celkem.\" \"Znaky\"");
}

TEST_F(TextToolsTest, ClipboardCommands) {
  platform.clipboard = "XY";
  Select("abcd", 1, 3);
  EXPECT_EQ(After("mnuadd"), "aXYbcd");  // required: never over the selection
  Select("abcd", 1, 3);
  EXPECT_EQ(After("mnucut"), "ad");
  EXPECT_EQ(platform.clipboard, "bc");
  editor.commands.Run("mnucopy");
  EXPECT_EQ(platform.clipboard, "ad");
  editor.commands.Run("mnucopysel");
  EXPECT_EQ(platform.clipboard, "");  // nothing selected: the empty text goes there all the same
  Select("abcd", 2, 2);
  editor.commands.Run("mnuallselect");
  EXPECT_EQ(editor.text.SelText(), "abcd");
}

TEST_F(TextToolsTest, WholeTextFromTheClipboardIsAskedFor) {
  platform.files["/a.txt"] = "abcd";
  editor.opener.OpenPath("/a.txt");
  platform.clipboard = "new";
  platform.answers = {Answer::kNo, Answer::kYes, Answer::kNo, Answer::kYes};
  EXPECT_EQ(After("mnuinsert"), "abcd");
  EXPECT_EQ(platform.calls.back(), "message 52 \"Opravdu vše nahradit textem ze schránky ?\" \"Vložení\"");
  EXPECT_EQ(After("mnuinsert"), "new");
  EXPECT_EQ(editor.documents.CurrentPath(), "/a.txt");
  EXPECT_EQ(After("mnunewclip"), "new");
  EXPECT_EQ(platform.calls.back(), "message 52 \"Opravdu nový dokument z textu ve schránce ?\" \"Nový\"");
  EXPECT_EQ(editor.documents.CurrentPath(), "");  // required: on No as well
  EXPECT_EQ(editor.documents.Title(), "Pelmar VEX ()");
  editor.commands.Run("mnuclearclip");
  EXPECT_EQ(platform.calls.back(), "clipboard clear");
}

}  // namespace
}  // namespace pelmar
