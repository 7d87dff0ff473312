#include "text/text_buffer.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace pelmar {
namespace {

std::vector<std::size_t> StartsOf(const TextBuffer& buffer) {
  std::vector<std::size_t> starts;
  for (std::size_t i = 0; i < buffer.LineCount(); ++i) starts.push_back(buffer.LineStart(i));
  return starts;
}

std::vector<std::size_t> PlainStarts(const std::string& text) {
  std::vector<std::size_t> starts{0};
  for (std::size_t i = 0; i + 1 < text.size(); ++i)
    if (text[i] == '\r' && text[i + 1] == '\n') starts.push_back(i + 2);
  return starts;
}

TEST(TextBuffer, SelectionIsClippedAndExactToTheByte) {
  TextBuffer b;
  b.SetText("ab\r\ncd");
  b.SetSelStart(3);  // between CR and LF
  EXPECT_EQ(b.SelStart(), 3u);
  b.SetSelLength(100);
  EXPECT_EQ(b.SelText(), "\ncd");
  b.SetSelStart(100);
  EXPECT_EQ(b.SelStart(), 6u);
  EXPECT_EQ(b.SelLength(), 0u);
  b.Select(5, 1);  // dragged backwards
  EXPECT_EQ(b.SelStart(), 1u);
  EXPECT_EQ(b.SelText(), "b\r\nc");
  b.SetSelLength(0);
  EXPECT_EQ(b.SelStart(), 1u);
  EXPECT_FALSE(b.HasSelection());
}

TEST(TextBuffer, TellsEachChangeOnceAndNoneForTheSameText) {
  TextBuffer b;
  std::vector<TextChange> told;
  const Listening heard = b.OnChange([&](const TextChange& change) { told.push_back(change); });
  b.SetText("");
  EXPECT_TRUE(told.empty());
  b.SetText("abc");
  ASSERT_EQ(told.size(), 1u);
  EXPECT_TRUE(told[0].whole);
  b.SetSelStart(2);
  b.SetText("abc");  // the caret goes home, nothing is told
  EXPECT_EQ(told.size(), 1u);
  EXPECT_EQ(b.SelStart(), 0u);
  b.SetSelStart(1);
  b.SetSelLength(1);
  b.ReplaceSelection("XYZ");
  ASSERT_EQ(told.size(), 2u);
  EXPECT_EQ(told[1].pos, 1u);
  EXPECT_EQ(told[1].removed, 1u);
  EXPECT_EQ(told[1].inserted, 3u);
  EXPECT_EQ(b.Text(), "aXYZc");
  EXPECT_EQ(b.SelStart(), 4u);
  b.ReplaceSelection("");
  b.Replace(1, 1, "X");
  EXPECT_EQ(told.size(), 2u);
  b.Select(0, 5);
  b.ReplaceSelection(b.SelText().substr(1, 3));  // a view of the buffer itself
  EXPECT_EQ(b.Text(), "XYZ");
}

TEST(TextBuffer, TypingAndErasingAreGroupedAndWholeTextForgets) {
  TextBuffer b;
  for (const char* key : {"a", "h", "o", "j"}) b.Type(key);
  b.Type("\r\n");
  b.Type("x");
  EXPECT_TRUE(b.Undo());
  EXPECT_EQ(b.Text(), "ahoj\r\n");
  EXPECT_TRUE(b.Undo());
  EXPECT_EQ(b.Text(), "");
  EXPECT_FALSE(b.Undo());
  EXPECT_TRUE(b.Redo());
  EXPECT_TRUE(b.Redo());
  EXPECT_FALSE(b.Redo());
  EXPECT_EQ(b.Text(), "ahoj\r\nx");
  b.SetSelStart(4);
  b.EraseBefore(1);
  b.EraseBefore(1);
  b.EraseAfter(2);
  EXPECT_EQ(b.Text(), "ahx");
  EXPECT_TRUE(b.Undo());
  EXPECT_EQ(b.Text(), "ahoj\r\nx");
  EXPECT_EQ(b.Caret(), 4u);
  b.Select(1, 3);
  b.EraseAfter(1);  // a selection is erased as a whole
  EXPECT_EQ(b.Text(), "aj\r\nx");
  b.Undo();
  EXPECT_EQ(b.SelText(), "ho");
  b.Type("n");
  EXPECT_FALSE(b.CanRedo());
  b.SetText("other");
  EXPECT_FALSE(b.CanUndo());
}

TEST(TextBuffer, OnlyCrLfBreaksLines) {
  TextBuffer b;
  b.SetText("a\rb\nc\r\r\nd\r\n");
  ASSERT_EQ(b.LineCount(), 3u);
  EXPECT_EQ(b.Line(0), "a\rb\nc\r");
  EXPECT_EQ(b.Line(1), "d");
  EXPECT_EQ(b.Line(2), "");
  EXPECT_EQ(b.LineOf(7), 0u);  // between CR and LF
  EXPECT_EQ(b.LineOf(8), 1u);
  b.Replace(1, 1, "\r\n");
  EXPECT_EQ(b.LineCount(), 4u);
}

// Random edits of a text rich in CR and LF: the kept line index equals a fresh one, and undo leads all the way back.
TEST(TextBuffer, RandomEditsKeepTheLineIndexAndUndoEverything) {
  std::mt19937 random(7);
  const auto draw = [&](std::size_t below) { return random() % below; };
  const auto piece = [&] {
    std::string text;
    for (std::size_t n = draw(4); n > 0; --n) text += "\r\n\nx"[draw(4)];
    return text;
  };
  for (int round = 0; round < 300; ++round) {
    TextBuffer b;
    b.SetText(piece() + piece() + piece());
    const std::string original = b.Text();
    for (int edit = 0; edit < 30; ++edit) {
      b.Select(draw(b.Size() + 1), draw(b.Size() + 1));
      switch (draw(5)) {
        case 0:
          b.Type(piece());
          break;
        case 1:
          b.EraseBefore(draw(3));
          break;
        case 2:
          b.EraseAfter(draw(3));
          break;
        case 3:
          b.Undo();
          break;
        default:
          b.ReplaceSelection(piece());
      }
      ASSERT_EQ(StartsOf(b), PlainStarts(b.Text()));
    }
    while (b.Undo()) ASSERT_EQ(StartsOf(b), PlainStarts(b.Text()));
    ASSERT_EQ(b.Text(), original);
  }
}

}  // namespace
}  // namespace pelmar
