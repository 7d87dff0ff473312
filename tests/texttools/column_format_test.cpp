#include "texttools/column_format.h"

#include <gtest/gtest.h>

namespace pelmar {
namespace {

std::string Shown(const Rows& rows) {
  std::string shown;
  for (const std::string& row : rows) shown += row + '|';
  return shown;
}

TEST(ColumnFormat, TheLoadMakesItsRowsAndTellsTheShortest) {
  const std::pair<std::string_view, std::string> cases[] = {
      {"", " 0"},
      {"a", " 1"},  // required: one character gives no row
      {"ab", "ab| 2"},
      {"ab\r\ncde", "ab|cde| 2"},
      {"abc\r\n", "abc|bc\r\n| 4"},  // required: the extra row
      {"abc\r\nde\r\n", "abc|de|e\r\n| 3"},
      {"abc\r\n\r\nde", "abc||de| 0"},
      {"abc\r\n\r\n", "abc|| 3"},           // the walk ends before the line feed of the empty line
      {"ab\ncd", "cd| 2"},                  // a bare line feed makes no row
      {"ab\rc\r\n", "ab|b\rc|\rc\r\n| 4"},  // only a line feed ends a line
      {"ab\r\nd", "ab| 2"},                 // required: a last line of one character gives no row
  };
  for (const auto& [selected, shown] : cases) {
    const SelectedRows result = RowsOfSelection(selected);
    EXPECT_EQ(Shown(result.rows) + ' ' + std::to_string(result.shortest), shown) << selected;
  }
}

TEST(ColumnFormat, OperationsActAtTheDistance) {
  const auto after = [](auto operation, auto... arguments) {
    Rows rows{"ab", "cde", "", "x"};
    operation(rows, arguments...);
    return Shown(rows) + ' ';
  };
  const std::string_view shown[] = {
      "-ab|-cde|-|-x| b|de||| ab-|cde-|-|x-| a|cd||| ",
      "a-b|c-de||x-| a|ce||x| a-b|cd-e||-x| b|ce||x| ",
      "ab-|cd-e||x| ab|cd||x| -ab|c-de||x| ab|de||x| ",
      "ab|cde-||x| ab|cde||x| ab|-cde||x| ab|cde||x| ",
  };
  for (std::size_t distance = 0; distance < std::size(shown); ++distance)
    EXPECT_EQ(after(InsertFromStart, distance, "-") + after(RemoveFromStart, distance) +
                  after(InsertFromEnd, distance, "-") + after(RemoveFromEnd, distance),
              shown[distance]);
  EXPECT_EQ(ShortestRow({"abc", "ab", "x"}) + 10 * ShortestRow({}), 1u);
}

}  // namespace
}  // namespace pelmar
