#include "text/insert.h"
#include "html/tag_commands.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "text/codepage.h"

namespace pelmar {
namespace {

struct Box : TextBuffer {
  Box(std::string text, std::size_t anchor, std::size_t caret) {
    SetText(std::move(text));
    Select(anchor, caret);
  }
};

TEST(Insert, WrapsOrPutsTheSampleIn) {
  Box selected("xabcy", 1, 4);
  WrapSelection(selected, "<B>", "</B>", "<B>Tučně</B>"_w);
  EXPECT_EQ(selected.Text(), "x<B>abc</B>y");
  EXPECT_EQ(selected.SelStart(), 11u);
  EXPECT_FALSE(selected.HasSelection());
  Box none("xy", 1, 1);
  WrapSelection(none, "<B>", "</B>", "<B>Tučně</B>"_w);
  EXPECT_EQ(none.Text(), "x<B>Tučně</B>y"_w);
  EXPECT_EQ(none.SelStart(), 13u);
  Box blank(" ", 0, 1);  // a blank is a selection
  WrapSelection(blank, "<PRE> ", " </PRE>", "sample");
  EXPECT_EQ(blank.Text(), "<PRE>   </PRE>");
}

TEST(Insert, InsertAtCaretKeepsTheSelectedTextWhicheverWayItWasDragged) {
  for (const auto& [anchor, caret] : {std::pair<std::size_t, std::size_t>{0, 3}, {3, 0}}) {
    Box box("abc", anchor, caret);
    InsertAtCaret(box, "<BR>");
    EXPECT_EQ(box.Text(), "<BR>abc");
    EXPECT_EQ(box.SelStart(), 4u);
    EXPECT_FALSE(box.HasSelection());
  }
}

TEST(Insert, TheTablesHoldWhatIsWritten) {
  const auto wrapper = [](std::string_view command) {
    return *std::ranges::find(TagWrappers(), command, &TagWrapper::command);
  };
  EXPECT_EQ(TagWrappers().size(), 20u);
  EXPECT_EQ(FixedInserts().size(), 14u);
  // A sample is its own tag around a text, but for the two that differ on purpose.
  for (const TagWrapper& tag : TagWrappers()) {
    EXPECT_TRUE(tag.sample.starts_with(tag.open)) << tag.command;
    EXPECT_TRUE(tag.sample.ends_with(tag.close)) << tag.command;
    EXPECT_EQ(tag.close.substr(tag.close.find('/') + 1), std::string(tag.open.substr(1, tag.open.find('>'))))
        << tag.command;
  }
  EXPECT_EQ(wrapper("mnucenter").sample, "<CENTER> Centrovaný text </CENTER>"_w);
  EXPECT_EQ(wrapper("Center").sample, "<CENTER>Centrovaný text</CENTER>"_w);  // required: no blanks in the toolbar's
  EXPECT_EQ(wrapper("mnutt").sample, "<TT>Pevná šířka znaků</TT>"_w);
  EXPECT_EQ(wrapper("mnuhttpbig").sample, "<BIG>Velké</BIG>"_w);
}

TEST(Insert, ComputedTexts) {
  const LocalTime time{2026, 3, 9, 7, 5, 0};
  EXPECT_EQ(DateText(time), "03-09-2026");
  EXPECT_EQ(TimeText(time), "07:05:00");
  SettingsRecord settings;
  EXPECT_EQ(EmailText(settings), "\"\" <>");
  settings.UserName = "Jan Novák"_w;
  settings.UserEmail = "jan@x.cz";
  EXPECT_EQ(EmailText(settings), "\"Jan Novák\" <jan@x.cz>"_w);
}

}  // namespace
}  // namespace pelmar
