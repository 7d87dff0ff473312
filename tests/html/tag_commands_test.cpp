#include "html/tag_commands.h"

#include <gtest/gtest.h>

#include "support/scripted_platform.h"
#include "support/whole_editor.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

struct TagCommandsTest : testing::Test {
  ScriptedPlatform platform;
  WholeEditor editor{platform};

  // What commands write one behind the other into an empty document.
  std::string Written(std::initializer_list<const char*> commands) {
    editor.text.SetText("");
    for (const char* command : commands) editor.commands.Run(command);
    return editor.text.Text();
  }
};

TEST_F(TagCommandsTest, WritesFixedTexts) {
  EXPECT_EQ(Written({"mnubr", "MnuHTMLeft", "MnuHTMLright", "mnuHTMLAnd", "MnuHTMLnobr", "mnuand", "mnudolar",
                     "mnucross", "mnuSS", "mnuZav", "mnubackslash", "mnucop", "mnureg", "mnutm"}),
            "<BR>&lt;&gt;&amp;&nbsp;&$#ß@\\©®™"_w);
}

TEST_F(TagCommandsTest, ASampleIsItsOwnTagAroundAText) {
  for (const TagWrapper& tag : TagWrappers()) {
    EXPECT_EQ(Written({std::string(tag.command).c_str()}), tag.sample);
    EXPECT_TRUE(tag.sample.starts_with(tag.open) && tag.sample.ends_with(tag.close)) << tag.command;
    EXPECT_EQ(tag.close.substr(tag.close.find('/') + 1), std::string(tag.open.substr(1, tag.open.find('>'))));
  }
  // required: no blanks in the toolbar's
  EXPECT_EQ(Written({"mnucenter", "Center"}), "<CENTER> Centrovaný text </CENTER><CENTER>Centrovaný text</CENTER>"_w);
  EXPECT_EQ(Written({"mnutt", "mnuhttpbig"}), "<TT>Pevná šířka znaků</TT><BIG>Velké</BIG>"_w);
}

TEST_F(TagCommandsTest, WritesDateTimeAndAddress) {
  platform.now = {2026, 3, 9, 7, 5, 0};
  EXPECT_EQ(Written({"mnudate", "mnutime"}), "03-09-202607:05:00");
  EXPECT_EQ(Written({"mnuemail"}), "\"\" <>");
  editor.settings.UserName = "Jan Novák"_w;
  editor.settings.UserEmail = "jan@x.cz";
  EXPECT_EQ(Written({"mnuemail"}), "\"Jan Novák\" <jan@x.cz>"_w);
}

}  // namespace
}  // namespace pelmar
