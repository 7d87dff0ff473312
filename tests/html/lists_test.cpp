#include "html/lists.h"

#include <gtest/gtest.h>

#include "support/scripted_platform.h"
#include "support/whole_editor.h"

namespace pelmar {
namespace {

TEST(Lists, OfItems) {
  const std::pair<ListSpec, std::string_view> cases[] = {
      {{ListKind::kBullets, {}, false, {}, {"Položka"}}, "<UL>\r\n<LI>Položka</LI>\r\n</UL>"},
      {{ListKind::kNumbers, 3, true, "H", {"a", "b"}},
       "<OL TYPE=\"I\" COMPACT>\r\n<LH>H</LH>\r\n<LI>a</LI>\r\n<LI>b</LI>\r\n</OL>"},
      {{ListKind::kBullets, 0, false, "", {}}, "<UL TYPE=\"disk\">\r\n<LH></LH>\r\n</UL>"},
      {{ListKind::kBullets, 1, false, {}, {}}, "<UL TYPE=\"circle\">\r\n</UL>"},
      {{ListKind::kBullets, 2, true, {}, {}}, "<UL TYPE=\"square\" COMPACT>\r\n</UL>"},
      {{ListKind::kBullets, 3, false, {}, {}}, "<UL>\r\n</UL>"},  // there is no such type
      {{ListKind::kNumbers, 0, false, {}, {}}, "<OL TYPE=\"1\">\r\n</OL>"},
      {{ListKind::kNumbers, 1, false, {}, {}}, "<OL TYPE=\"a\">\r\n</OL>"},
      {{ListKind::kNumbers, 2, false, {}, {}}, "<OL TYPE=\"A\">\r\n</OL>"},
      {{ListKind::kNumbers, 4, false, {}, {}}, "<OL TYPE=\"i\">\r\n</OL>"},
  };
  for (const auto& [spec, list] : cases) EXPECT_EQ(BuildList(spec), list);
  EXPECT_EQ(BuildDefinitionList({}, {}), "<DL>\r\n</DL>");
  EXPECT_EQ(BuildDefinitionList({"a"}, {"c", "d"}),
            "<DL>\r\n<DT>a</DT>\r\n<DD>c</DD>\r\n<DT></DT>\r\n<DD>d</DD>\r\n</DL>");
  EXPECT_EQ(BuildDefinitionList({"a"}, {}), "<DL>\r\n<DT>a</DT>\r\n<DD></DD>\r\n</DL>");
}

TEST(Lists, OfTheSelectedLines) {
  ScriptedPlatform platform;
  WholeEditor editor(platform);
  const std::pair<std::string, std::string_view> cases[] = {
      {"a\r\n\r\nbc", "<UL><LI>a</LI>\r\n<LI></LI>\r\n<LI>b</LI></UL>-"},  // required: the last character is lost
      {"x", "<UL><LI></LI></UL>-"},
      {"a\r\n", "<UL><LI>a</LI>\r</LI></UL>-"},
      {"a\nbc", "<UL><LI>a\n<LI>b</LI></UL>-"},
  };
  for (const auto& [selection, list] : cases) {
    editor.text.SetText(selection + "-");
    editor.text.Select(0, selection.size());
    editor.commands.Run("mnu_HTML_sel_list");
    EXPECT_EQ(editor.text.Text(), list);
  }
  editor.text.Select(0, 1);
  editor.commands.Run("mnu_HTML_sel_num_list");
  platform.answers = {Answer::kOk};
  editor.commands.Run("mnu_HTML_sel_num_list");
  EXPECT_EQ(platform.TakeCalls(), std::vector<std::string>{R"(message 0 "Vyber text" "HTML list")"});
  EXPECT_EQ(editor.text.Text(), "<OL><LI></LI></OL>UL><LI>a\n<LI>b</LI></UL>-");
}

}  // namespace
}  // namespace pelmar
