#include "texttools/column_format.h"

#include <gtest/gtest.h>

namespace pelmar {
namespace {

TEST(ColumnFormat, TheLoadMakesItsRows) {
  const struct {
    std::string_view selected;
    Rows rows;
    std::size_t shortest;
  } cases[] = {
      {"", {}, 0},
      {"a", {}, 1},  // required: one character gives no row
      {"ab", {"ab"}, 2},
      {"ab\r\ncde", {"ab", "cde"}, 2},
      {"abc\r\n", {"abc", "bc\r\n"}, 4},  // required: the extra row
      {"abc\r\nde\r\n", {"abc", "de", "e\r\n"}, 3},
      {"abc\r\n\r\nde", {"abc", "", "de"}, 0},
      {"abc\r\n\r\n", {"abc", ""}, 3},              // the walk ends before the line feed of the empty line
      {"ab\ncd", {"cd"}, 2},                        // a bare line feed makes no row
      {"ab\rc\r\n", {"ab", "b\rc", "\rc\r\n"}, 4},  // only a line feed ends a line
      {"ab\r\nd", {"ab"}, 2},                       // required: a last line of one character gives no row
  };
  for (const auto& c : cases) {
    const SelectedRows result = RowsOfSelection(c.selected);
    EXPECT_EQ(result.rows, c.rows) << c.selected;
    EXPECT_EQ(result.shortest, c.shortest) << c.selected;
  }
}

TEST(ColumnFormat, OperationsActAtTheDistance) {
  const Rows rows{"ab", "cde", "", "x"};
  const struct {
    void (*insert)(Rows&, std::size_t, std::string_view);
    void (*remove)(Rows&, std::size_t);
    std::size_t distance;
    Rows inserted, removed;
  } cases[] = {
      {InsertFromStart, RemoveFromStart, 0, {"-ab", "-cde", "-", "-x"}, {"b", "de", "", ""}},
      {InsertFromStart, RemoveFromStart, 1, {"a-b", "c-de", "", "x-"}, {"a", "ce", "", "x"}},
      {InsertFromStart, RemoveFromStart, 3, {"ab", "cde-", "", "x"}, {"ab", "cde", "", "x"}},
      {InsertFromEnd, RemoveFromEnd, 0, {"ab-", "cde-", "-", "x-"}, {"a", "cd", "", ""}},
      {InsertFromEnd, RemoveFromEnd, 1, {"a-b", "cd-e", "", "-x"}, {"b", "ce", "", "x"}},
      {InsertFromEnd, RemoveFromEnd, 2, {"-ab", "c-de", "", "x"}, {"ab", "de", "", "x"}},
  };
  for (const auto& c : cases) {
    Rows changed = rows;
    c.insert(changed, c.distance, "-");
    EXPECT_EQ(changed, c.inserted) << c.distance;
    changed = rows;
    c.remove(changed, c.distance);
    EXPECT_EQ(changed, c.removed) << c.distance;
  }
  EXPECT_EQ(ShortestRow(rows), 0u);
  EXPECT_EQ(ShortestRow({"abc", "ab"}), 2u);
  EXPECT_EQ(ShortestRow({}), 0u);
  EXPECT_EQ(JoinRows({"a", "", "b"}), "a\r\n\r\nb");
  EXPECT_EQ(JoinRows({}), "");
}

}  // namespace
}  // namespace pelmar
