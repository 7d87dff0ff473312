#include <gtest/gtest.h>

#include <QComboBox>

#include "html/dialogs/frame.h"
#include "html/dialogs/frames.h"
#include "html/dialogs/vytvor.h"
#include "platform/color.h"
#include "platform/qt/controls/swatch.h"
#include "platform/qt/controls/text_box.h"
#include "platform/qt/convert.h"
#include "support/chosen_file.h"
#include "support/controls.h"
#include "support/plain_view.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

bool Enabled(const QWidget& window, const char* name) { return Find<QWidget>(window, name)->isEnabled(); }

struct PageWindows : testing::Test {
  TextBuffer text;
  TempFolder temp;
  PlainView view;
  SettingsRecord settings;
  ScriptedPlatform platform;
  Color picked = Rgb(1, 2, 3);
  std::vector<std::string> shown;
  Vytvor page{text,
              view,
              settings,
              platform,
              {[this](Color) { return picked; }, [this](const std::string& path) { shown.push_back(path); }},
              nullptr};
  Frame frame{text, [this](const std::string& path) { shown.push_back(path); }, nullptr};

  PageWindows() {
    temp.Put("žába.gif", "");
    temp.Put("a.htm", "");
    settings.UserName = "Jan Novák"_w;
    platform.now = {2026, 11, 24, 9, 5, 0};
    view.look.fore_color = Rgb(7, 7, 7);
    view.look.back_color = Rgb(8, 8, 8);
  }
  void Choose(const QWidget& window, const char* name) { ChooseFile(window, temp.Path(), name); }
  // The page's BODY tag, on a document "x".
  std::string Body() {
    text.SetText("x");
    page.Present();
    Click(page, "Command1");
    EXPECT_FALSE(page.isVisible());
    const std::string made(text.Text());
    const std::size_t start = made.find(" <BODY"), end = made.find("x\r\n\r\n </BODY>");
    return end < made.size() ? made.substr(start, end - start) : made;
  }
};

TEST_F(PageWindows, APageWithTheDefaults) {
  page.Present();
  Click(page, "Command1");
  for (const std::string_view part :
       {"\"AUTHOR\" CONTENT=\"Jan Novák\""_w, "\"CREATED\" CONTENT=\"11-24-2026 09:05:00\""_w,
        "<TITLE>Stránka </TITLE>"_w, " <BODY>\r\n---TEXT---\r\n"_w})
    EXPECT_NE(text.Text().find(part), std::string::npos) << part;
  EXPECT_TRUE(view.calls.empty());
}

TEST_F(PageWindows, ColorsOfThePageBecomeThoseOfTheEditor) {
  Click(page, "Check1");
  // required: the swatch is white, the label says black
  EXPECT_EQ(Body(), " <BODY BGCOLOR=\"#000000\">\r\n");
  EXPECT_EQ(view.look.back_color, Rgb(255, 255, 255));
  EXPECT_EQ(view.look.fore_color, Rgb(7, 7, 7));

  Click(page, "Check1");
  Click(page, "Check2");
  Click(page, "Command7");
  EXPECT_EQ(Find<TextBox>(page, "Text1")->TextColor(), QColor(1, 2, 3));
  EXPECT_EQ(view.look.fore_color, Rgb(7, 7, 7));  // not before Ok
  EXPECT_EQ(Body(), " <BODY TEXT=\"#010203\">\r\n");
  EXPECT_EQ(view.look.fore_color, Rgb(1, 2, 3));

  const char* const boxes[] = {"Check1", "Check7", "Check5", "Check6"};
  const char* const buttons[] = {"Command4", "Command6", "Command5", "Command8"};
  for (int row = 0; row < 4; ++row) {
    EXPECT_FALSE(Enabled(page, buttons[row]));
    Click(page, boxes[row]);
    picked = Rgb(row, 0, 0);
    Click(page, buttons[row]);
  }
  EXPECT_EQ(Find<TextBox>(page, "Text1")->BackgroundColor(), QColor(0, 0, 0));
  EXPECT_EQ(Find<Swatch>(page, "Picture3")->Color(), QColor(3, 0, 0));
  EXPECT_EQ(Body(),
            " <BODY BGCOLOR=\"#000000\" TEXT=\"#010203\" LINK=\"#010000\" VLINK=\"#020000\" ALINK=\"#030000\">\r\n");
}

TEST_F(PageWindows, BaseFont) {
  EXPECT_FALSE(Enabled(page, "HScroll1"));
  Click(page, "Check8");
  EXPECT_EQ(Body(), " <BODY>\r\n<BASEFONT SIZE=\"1\">\r\n");
  SetBar(page, "HScroll1", 7);
  EXPECT_EQ(LabelText(page, "Label14"), "7");
  EXPECT_EQ(Body(), " <BODY>\r\n<BASEFONT SIZE=\"7\">\r\n");
}

TEST_F(PageWindows, ABackgroundPictureNeedsAFile) {
  for (const char* name : {"Drive1", "Dir1", "File1", "Combo1", "Check4"}) EXPECT_FALSE(Enabled(page, name)) << name;
  page.Present();
  Click(page, "Check3");
  for (const char* name : {"Drive1", "Dir1", "File1", "Combo1", "Check4"}) EXPECT_TRUE(Enabled(page, name)) << name;
  EXPECT_FALSE(Enabled(page, "Command1"));
  EXPECT_FALSE(Enabled(page, "Command3"));
  Choose(page, "žába.gif");
  EXPECT_TRUE(Enabled(page, "Command1"));
  Click(page, "Command3");
  EXPECT_EQ(shown, std::vector<std::string>{temp.File("žába.gif")});
  EXPECT_EQ(Body(), FromUtf8(" <BODY BACKGROUND=\"file://" + temp.File("žába.gif") + "\">\r\n"));
  Click(page, "Check4");
  EXPECT_FALSE(Enabled(page, "Command3"));
  EXPECT_EQ(Body(), " <BODY BACKGROUND=\"file:///žába.gif\">\r\n"_w);  // required: a URL of the bare name
  Find<QComboBox>(page, "Combo1")->setCurrentText(QStringLiteral("*.BMP"));
  EXPECT_FALSE(Enabled(page, "Command1"));
  Click(page, "Check3");
  EXPECT_TRUE(Enabled(page, "Command1"));
  EXPECT_FALSE(Enabled(page, "Command3"));
  EXPECT_FALSE(Enabled(page, "File1"));
  EXPECT_EQ(Body(), " <BODY>\r\n");
}

TEST_F(PageWindows, Frameset) {
  Frames frames(text, nullptr);
  frames.Present();
  EXPECT_FALSE(Enabled(frames, "Text2"));
  Click(frames, "Check2");
  EXPECT_TRUE(Enabled(frames, "Text2"));
  SetField(frames, "Text3", QStringLiteral("Můj"));
  Click(frames, "Command1");
  EXPECT_FALSE(frames.isVisible());
  for (const std::string_view part : {"<TITLE>Můj</TITLE>"_w, " <FRAMESET ROWS=\"*,50%,50\">\r\n"_w})
    EXPECT_NE(text.Text().find(part), std::string::npos) << part;
  EXPECT_EQ(text.SelText(), "Tento Prohlížeč nepodporuje Framesy"_w);
}

TEST_F(PageWindows, AFrameWithEveryAttribute) {
  frame.Present();
  EXPECT_FALSE(Enabled(frame, "Command1"));
  Choose(frame, "a.htm");
  text.SetText("ab");
  text.Select(1, 2);
  Click(frame, "Command1");
  EXPECT_EQ(text.Text(), "a<FRAME SRC=\"file://" + temp.File("a.htm") + "\">b");
  EXPECT_FALSE(frame.isVisible());

  const std::pair<const char*, std::vector<const char*>> groups[] = {
      {"Check4", {"Text1"}},    {"Check6", {"Combo3"}},
      {"Check1", {"Combo2"}},   {"Check7", {"VScroll1"}},
      {"Check8", {"VScroll2"}}, {"Check9", {"VScroll10", "VScroll11", "VScroll12"}},
      {"Check2", {}},           {"Check3", {"VScroll4", "VScroll5"}}};
  for (const auto& [box, controls] : groups) {
    for (const char* name : controls) EXPECT_FALSE(Enabled(frame, name)) << name;
    Click(frame, box);
    for (const char* name : controls) EXPECT_TRUE(Enabled(frame, name)) << name;
  }
  Click(frame, "Check5");
  text.SetText("");
  Click(frame, "Command1");  // labels that no bar has touched
  EXPECT_EQ(text.Text(),
            "<FRAME SRC=\"a.htm\" NAME=\"Rám\" ALIGN=\"LEFT\" FRAMEBORDER=\"0\" BORDERCOLOR=\"#000000\" "
            "FRAMESPACING=\"0\" SCROLLING=\"yes\" MARGINHEIGHT=\"0\" MARGINWIDTH=\"0\" SCROLLING=\"yes\" NORESIZE>"_w);
  SetBar(frame, "VScroll12", 255);
  SetBar(frame, "VScroll10", 16);
  EXPECT_EQ(LabelText(frame, "Label8"), "#FF0010");
  EXPECT_EQ(Find<Swatch>(frame, "Picture3")->Color(), QColor(255, 0, 16));
  SetBar(frame, "VScroll1", 4);
  SetBar(frame, "VScroll2", 5);
  SetBar(frame, "VScroll4", 400);
  SetBar(frame, "VScroll5", 400);
  Find<QComboBox>(frame, "Combo2")->setCurrentText(QStringLiteral(" no"));
  text.SetText("");
  Click(frame, "Command1");
  EXPECT_EQ(
      text.Text(),
      "<FRAME SRC=\"a.htm\" NAME=\"Rám\" ALIGN=\"LEFT\" FRAMEBORDER=\"4\" BORDERCOLOR=\"#FF0010\" "
      "FRAMESPACING=\"5\" SCROLLING=\"no\" MARGINHEIGHT=\"300\" MARGINWIDTH=\"400\" SCROLLING=\" no\" NORESIZE>"_w);
}

}  // namespace
}  // namespace pelmar
