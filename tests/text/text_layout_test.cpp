#include "text/text_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/random_source.h"
#include "text/caret_mover.h"
#include "text/codepage.h"
#include "text/text_stops.h"

namespace pelmar {
namespace {

// Every character ten pixels, so that a width counts characters; `i` half of it.
LayoutRules Rules(int columns, bool wrap = true, TextAlign align = TextAlign::kLeft) {
  LayoutRules rules;
  rules.advances.of.fill(10 * kUnitsPerPixel);
  rules.advances.of['i'] = 5 * kUnitsPerPixel;
  rules.advances.tab_stop = 80 * kUnitsPerPixel;
  rules.width = std::int64_t{columns} * 10 * kUnitsPerPixel;
  rules.wrap = wrap;
  rules.align = align;
  return rules;
}

// A fraction to each advance, as at scales between whole numbers.
LayoutRules OddRules(int width_pixels, bool wrap) {
  LayoutRules rules = Rules(1, wrap);
  for (std::size_t code = 0; code < 256; ++code)
    rules.advances.of[code] = static_cast<std::int32_t>(300 + code * 7 % 411);
  rules.advances.tab_stop = 8 * rules.advances.of[' '];
  rules.width = width_pixels * kUnitsPerPixel;
  return rules;
}

struct Laid {
  TextBuffer buffer;
  TextLayout layout{buffer};
  CaretMover mover{layout};

  Laid(std::string text, const LayoutRules& rules) {
    buffer.SetText(std::move(text));
    layout.Lay(buffer, rules);
  }
  [[nodiscard]] std::vector<std::string> Rows() const {
    std::vector<std::string> rows;
    for (std::size_t row = 0; row < layout.RowCount(); ++row)
      rows.push_back(buffer.Text().substr(layout.RowStart(row), layout.RowEnd(row) - layout.RowStart(row)));
    return rows;
  }
  std::size_t Go(CaretMove move, bool select = false, std::size_t page = 1) {
    mover.Go(buffer, move, select, page);
    return buffer.Caret();
  }
};

TEST(TextLayout, WrapsBehindBlanksAndBreaksLinesAtCrLfOnly) {
  const struct {
    std::string text;
    int columns;
    std::vector<std::string> rows;
  } cases[] = {{"", 5, {""}},
               {"a\n\rb\r\r\nc\r\n", 9, {"a\n\rb\r", "c", ""}},  // the last CR before LF makes the break
               {"one two", 6, {"one ", "two"}},
               {"one two", 3, {"one ", "two"}},        // the blank hangs over the edge
               {"one  two", 3, {"one ", " ", "two"}},  // a second one does not
               {"abc ", 3, {"abc "}},
               {"ab cdefgh", 3, {"ab ", "cde", "fgh"}},
               {"a\tb", 9, {"a\tb"}},
               {"a\tb", 8, {"a\t", "b"}},
               {"iiii a", 3, {"iiii ", "a"}},
               {"ab", 0, {"a", "b"}},  // narrower than any character: one to a row
               {std::string("a\xA0") + "b c", 3, {std::string("a\xA0") + "b ", "c"}}};  // a hard blank holds words
  for (const auto& c : cases) EXPECT_EQ(Laid(c.text, Rules(c.columns)).Rows(), c.rows) << c.text << " in " << c.columns;
  EXPECT_EQ(Laid("one two\r\nthree", Rules(3, false)).Rows(), (std::vector<std::string>{"one two", "three"}));
}

TEST(TextLayout, RowsAndPlacesFollowAnyEditAsIfLaidOutAnew) {
  RandomSource random(20);
  const auto piece = [&](std::size_t longest) { return random.Text(longest, "ab  \t\r\n\r\n\x01-"); };
  for (int round = 0; round < 120; ++round) {
    const LayoutRules rules = OddRules(static_cast<int>(random.Below(120)) + 1, round % 2 == 0);
    Laid laid(piece(300), rules);
    if (round < 2) laid.buffer.Replace(0, 0, std::string(9000, 'b') + '\t' + std::string(3000, 'a'));
    laid.layout.Lay(laid.buffer, rules);
    const Listening heard = laid.buffer.OnChange([&](const TextChange& change) { laid.layout.Update(change); });
    for (int edit = 0; edit < 40; ++edit) {
      const std::size_t pos = random.Below(laid.buffer.Size() + 1);
      laid.buffer.Replace(pos, random.Below(12), piece(8));
      Laid fresh(laid.buffer.Text(), rules);
      ASSERT_EQ(laid.Rows(), fresh.Rows()) << "width " << rules.width << " edit " << edit;
      ASSERT_EQ(laid.layout.ContentWidth(), fresh.layout.ContentWidth());
      const std::size_t probe = random.Below(laid.buffer.Size() + 1);
      const std::size_t row = laid.layout.RowOf(probe);
      ASSERT_EQ(laid.layout.XOf(row, probe), fresh.layout.XOf(row, probe));
    }
  }
}

TEST(TextLayout, TellsWhichRowsAChangeTouched) {
  Laid laid("aaa bbb ccc\r\nddd\r\neee", Rules(4));
  RowsChange told;
  const Listening heard = laid.buffer.OnChange([&](const TextChange& change) { told = laid.layout.Update(change); });
  laid.buffer.Replace(14, 1, "x");  // the same row, and the one before it is looked at
  EXPECT_EQ(told.first, 2u);
  EXPECT_EQ(told.removed, 2u);
  EXPECT_EQ(told.inserted, 2u);
  laid.buffer.Replace(16, 2, "");  // two lines become one
  EXPECT_EQ(laid.Rows(), (std::vector<std::string>{"aaa ", "bbb ", "ccc", "dxde", "ee"}));
  laid.buffer.SetText("z");
  EXPECT_EQ(told.removed, 5u);
  EXPECT_EQ(told.inserted, 1u);
}

TEST(TextLayout, EveryStopIsFoundAgainWhereItIsShown) {
  std::string text;
  for (int i = 0; i < 7000; ++i) text += static_cast<char>(i * 37 % 256);
  text += "\tx\r\n\tab\tc \r\n";
  for (const bool wrap : {true, false}) {
    for (const TextAlign align : {TextAlign::kLeft, TextAlign::kCentre, TextAlign::kRight}) {
      Laid laid(text, OddRules(333, wrap));
      laid.layout.SetAlign(align);
      for (std::size_t pos = 0; pos <= text.size(); ++pos) {
        const std::size_t row = laid.layout.RowOf(pos);
        if (pos > laid.layout.RowEnd(row)) continue;  // inside a CR LF
        const std::int64_t x = laid.layout.RowLeft(row) + laid.layout.XOf(row, pos);
        const TextPlace place = PlaceInRow(laid.layout, row, x);
        ASSERT_EQ(place.pos, pos) << "wrap " << wrap;
        ASSERT_EQ(place.at_row_end, pos == laid.layout.RowEnd(row) && !laid.layout.EndsLine(row));
        ASSERT_EQ(laid.layout.CharAt(row, laid.layout.XOf(row, pos)), pos);
        ASSERT_LE(laid.layout.RowLeft(row) + laid.layout.RowWidth(row), laid.layout.ContentWidth());
      }
    }
  }
}

TEST(TextLayout, SumsOfFractionsDoNotDrift) {
  const LayoutRules rules = OddRules(500, false);
  const Laid laid(std::string(4096000, 'w'), rules);
  for (const std::size_t pos : {std::size_t{1}, std::size_t{2047}, std::size_t{2049}, std::size_t{4095999}})
    EXPECT_EQ(laid.layout.XOf(0, pos), static_cast<std::int64_t>(pos) * rules.advances.of['w']);
}

TEST(TextLayout, AlignsRowsInTheWindowOrInTheWidestRow) {
  Laid laid("abcd\r\nab", Rules(6, true, TextAlign::kRight));
  EXPECT_EQ(laid.layout.RowLeft(1), 40 * kUnitsPerPixel);
  laid.layout.SetAlign(TextAlign::kCentre);
  EXPECT_EQ(laid.layout.RowLeft(0), 10 * kUnitsPerPixel);
  laid.layout.Lay(laid.buffer, Rules(1, false, TextAlign::kRight));
  EXPECT_EQ(laid.layout.ContentWidth(), 40 * kUnitsPerPixel);
  EXPECT_EQ(laid.layout.RowLeft(1), 20 * kUnitsPerPixel);
}

std::vector<std::size_t> Walk(std::string_view text, std::size_t from, std::size_t to,
                              std::size_t (*step)(std::string_view, std::size_t)) {
  std::vector<std::size_t> seen{from};
  while (seen.back() != to && seen.size() <= text.size()) seen.push_back(step(text, seen.back()));
  return seen;
}

TEST(TextStops, StepsAndWords) {
  using Stops = std::vector<std::size_t>;
  const std::string text = "ab, c\r\n\r\n  d\re\xE8";  // è of the page's own: a letter
  Stops steps = Walk(text, 0, text.size(), NextStop);
  EXPECT_EQ(steps, (Stops{0, 1, 2, 3, 4, 5, 7, 9, 10, 11, 12, 13, 14, 15}));
  std::reverse(steps.begin(), steps.end());
  EXPECT_EQ(Walk(text, text.size(), 0, PreviousStop), steps);
  EXPECT_EQ(Walk(text, 0, text.size(), NextWord), (Stops{0, 2, 4, 5, 7, 11, 12, 13, 15}));
  EXPECT_EQ(Walk(text, text.size(), 0, PreviousWord), (Stops{15, 13, 12, 11, 9, 7, 5, 4, 2, 0}));
  EXPECT_EQ(PreviousStop(text, 6), 5u);  // from between CR and LF
  EXPECT_EQ(NextStop(text, 6), 7u);
  EXPECT_EQ(NextWord("\r\n\na", 1), 2u);

  const std::pair<std::size_t, std::string_view> words[] = {
      {1, "ab"}, {2, ","}, {5, "c"}, {6, ""}, {7, ""}, {15, "e\xE8"}};  // 5: behind the last word of the line
  for (const auto& [pos, word] : words) {
    const TextSpan span = WordAt(text, pos);
    EXPECT_EQ(text.substr(span.begin, span.end - span.begin), word) << pos;
  }
  EXPECT_EQ(WordAt("", 0).end, 0u);
}

TEST(CaretMover, UpAndDownKeepTheirAimOverShortRows) {
  Laid laid("abcdef\r\nab\r\nabcdef\r\n", Rules(9));
  laid.buffer.SetSelStart(5);
  EXPECT_EQ(laid.Go(CaretMove::kDown), 10u);
  EXPECT_EQ(laid.Go(CaretMove::kDown), 17u);
  EXPECT_EQ(laid.Go(CaretMove::kDown), 20u);
  EXPECT_EQ(laid.Go(CaretMove::kDown), 20u);
  EXPECT_EQ(laid.Go(CaretMove::kPageUp, true, 2), 10u);
  EXPECT_EQ(laid.buffer.Anchor(), 20u);
  EXPECT_EQ(laid.Go(CaretMove::kUp), 5u);
  laid.Go(CaretMove::kLeft);  // another aim
  laid.Go(CaretMove::kDown);
  EXPECT_EQ(laid.Go(CaretMove::kDown), 16u);
  laid.buffer.SetSelStart(1);  // by somebody else
  EXPECT_EQ(laid.Go(CaretMove::kDown), 9u);
  laid.buffer.SetSelStart(5);
  laid.Go(CaretMove::kDown);
  EXPECT_EQ(laid.Go(CaretMove::kRowEnd), 10u);  // the same place, but the aim is another now
  EXPECT_EQ(laid.Go(CaretMove::kDown), 14u);
}

TEST(CaretMover, EndOfAWrappedRowShowsTheCaretOnThatRow) {
  Laid laid("abcdef", Rules(3));
  EXPECT_EQ(laid.Go(CaretMove::kRowEnd), 3u);
  EXPECT_EQ(laid.mover.Row(laid.buffer), 0u);
  EXPECT_TRUE(PlaceInRow(laid.layout, 0, 40 * kUnitsPerPixel).at_row_end);
  EXPECT_EQ(laid.Go(CaretMove::kRowEnd), 3u);
  EXPECT_EQ(laid.Go(CaretMove::kRowStart), 0u);
  laid.Go(CaretMove::kRowEnd);
  laid.mover.Forget();
  EXPECT_EQ(laid.mover.Row(laid.buffer), 1u);
  laid.Go(CaretMove::kUp);
  laid.Go(CaretMove::kRowEnd);
  EXPECT_EQ(laid.Go(CaretMove::kDown), 6u);  // the aim is the row's end
  laid.Go(CaretMove::kRowStart);
  EXPECT_EQ(laid.buffer.Caret(), 3u);
  EXPECT_EQ(laid.mover.Row(laid.buffer), 1u);
}

TEST(CaretMover, ArrowsLeaveASelectionAtItsBorders) {
  Laid laid("abcdef", Rules(9));
  laid.buffer.Select(4, 2);
  EXPECT_EQ(laid.Go(CaretMove::kRight), 4u);
  laid.buffer.Select(4, 2);
  EXPECT_EQ(laid.Go(CaretMove::kLeft), 2u);
  laid.buffer.Select(4, 2);
  EXPECT_EQ(laid.Go(CaretMove::kLeft, true), 1u);
  EXPECT_EQ(laid.buffer.SelEnd(), 4u);
  EXPECT_EQ(laid.Go(CaretMove::kTextEnd, true), 6u);
  EXPECT_EQ(laid.buffer.SelText(), "ef");
}

}  // namespace
}  // namespace pelmar
