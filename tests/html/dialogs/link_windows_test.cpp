#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QRadioButton>
#include <QTest>
#include <QTreeWidget>

#include "html/dialogs/kotva.h"
#include "html/dialogs/mail_to.h"
#include "html/dialogs/obrazek.h"
#include "html/dialogs/odkaz.h"
#include "html/dialogs/odkaz_na_jiny.h"
#include "html/dialogs/template.h"
#include "html/samples/templaty.h"
#include "platform/qt/controls/text_box.h"
#include "platform/qt/convert.h"
#include "program/program.h"
#include "support/chosen_file.h"
#include "support/controls.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

bool Enabled(const QWidget& window, const char* name) { return Find<QWidget>(window, name)->isEnabled(); }

struct LinkWindows : testing::Test {
  TextBuffer text;
  TempFolder temp;
  std::vector<std::string> shown;

  LinkWindows() {
    temp.Put("b.GIF", "");
    temp.Put("x.htm", "");
    text.SetText("before, after");
    text.Select(7, 13);
  }
  std::function<void(const std::string&)> Show() {
    return [this](const std::string& path) { shown.push_back(path); };
  }
  void Choose(const QWidget& window, const char* name) { ChooseFile(window, temp.Path(), name); }
};

struct ImageWindow : LinkWindows {
  Obrazek image{text, Show(), nullptr};

  ImageWindow() { image.Present(); }
  std::string Sizes() { return LabelText(image, "Label3") + "," + LabelText(image, "Label4"); }
};

TEST_F(ImageWindow, InsertsWithoutTouchingTheSelection) {
  EXPECT_FALSE(Enabled(image, "Command1"));
  EXPECT_FALSE(Enabled(image, "Command3"));
  Choose(image, "b.GIF");  // the mask *.GIF
  Click(image, "Command3");
  EXPECT_EQ(shown, std::vector<std::string>{temp.Path() + "/b.GIF"});
  Click(image, "Command1");
  const std::string tag = "<IMG SRC=\"file://" + temp.Path() + "/b.GIF\">";
  EXPECT_EQ(text.Text(), "before," + tag + " after");
  EXPECT_EQ(text.SelStart(), 7 + tag.size());
  EXPECT_FALSE(image.isVisible());
}

TEST_F(ImageWindow, EveryOptionWithItsDefault) {
  Choose(image, "b.GIF");
  for (const char* box : {"Check1", "Check2", "Check3", "Check4", "Check5", "Check6", "Check7", "Check8"}) {
    Click(image, box);
  }
  text.SetText("");
  Click(image, "Command1");
  EXPECT_EQ(text.Text(),
            "<IMG SRC=\"b.GIF\" ALT=\"Obrázek\" ALIGN=\"left\" WIDTH=\"10%\" HEIGHT=\"10%\" VSPACE=\"0\" HSPACE=\"0\" "
            "BORDER=\"0\" LOWSRC=\"path/file.jpg\" USEMAP=\"#mapa\">"_w);
}

TEST_F(ImageWindow, EachFieldGoesToItsAttribute) {
  Choose(image, "b.GIF");
  for (const char* box : {"Check5", "Check1", "Check3", "Check2", "Check8"}) Click(image, box);
  Click(image, "Option5");
  Click(image, "Option7");
  SetBar(image, "VScroll1", 600);
  SetBar(image, "VScroll2", 800);
  SetBar(image, "VScroll3", 3);
  SetBar(image, "VScroll4", 4);
  SetBar(image, "VScroll5", 5);
  text.SetText("");
  Click(image, "Command1");
  EXPECT_EQ(text.Text(),
            "<IMG SRC=\"b.GIF\" ALIGN=\"right\" WIDTH=\"800\" HEIGHT=\"600\" VSPACE=\"5\" HSPACE=\"4\" BORDER=\"3\">");
}

TEST_F(ImageWindow, UnitsChangeRangesAndLabels) {
  EXPECT_EQ(Sizes(), " 10%, 10%");
  Click(image, "Check1");
  SetBar(image, "VScroll1", 150);
  EXPECT_EQ(Sizes(), " 150%, 10%");
  Click(image, "Option7");
  EXPECT_EQ(Sizes(), " 150, 10");  // the values stay
  SetBar(image, "VScroll1", 999);
  SetBar(image, "VScroll2", 0);
  EXPECT_EQ(Sizes(), " 600, 1");
  SetBar(image, "VScroll2", 999);
  EXPECT_EQ(Sizes(), " 600, 800");
  SetBar(image, "VScroll2", 5);
  Click(image, "Option6");
  EXPECT_EQ(Sizes(), " 200%, 10%");  // the nearest bounds
}

TEST_F(ImageWindow, CheckBoxesEnableTheirControls) {
  const std::vector<std::pair<const char*, std::vector<const char*>>> groups = {
      {"Check1", {"Option6", "Option7", "VScroll1", "VScroll2"}},
      {"Check8", {"Option1", "Option2", "Option3", "Option4", "Option5"}},
      {"Check3", {"VScroll4", "VScroll5"}},
      {"Check2", {"VScroll3"}},
      {"Check4", {"Text1"}},
      {"Check6", {"Text2"}},
      {"Check7", {"Text3"}}};
  for (const auto& [box, controls] : groups)
    for (const char* control : controls) {
      EXPECT_FALSE(Enabled(image, control)) << control;
      Click(image, box);
      EXPECT_TRUE(Enabled(image, control)) << control;
      Click(image, box);
    }
}

TEST_F(LinkWindows, AnchorsGoToTheTextAndToTheList) {
  Odkaz link(text, nullptr);
  Kotva anchor(
      text, [&link](const QString& name) { link.AddAnchor(name); }, nullptr);
  auto* list = Find<QComboBox>(link, "Combo1");
  for (const char* name : {"Kotva1", "", "část", "Kotva1"}) {
    if (*name != '\0' || list->count() == 1) SetField(anchor, "Text1", QString::fromUtf8(name));
    anchor.Present();
    Click(anchor, "Command1");
    EXPECT_EQ(anchor.isVisible(), *name == '\0') << name;  // an empty name is refused
  }
  EXPECT_EQ(text.Text(), "before,<A NAME=\"Kotva1\"></A><A NAME=\"část\"></A><A NAME=\"Kotva1\"></A> after"_w);
  QStringList names;
  for (int row = 0; row < list->count(); ++row) names += list->itemText(row);
  EXPECT_EQ(names.join(u' '), QStringLiteral("Kotva1 část Kotva1"));
  EXPECT_EQ(list->currentText(), QStringLiteral("NováKotva"));
}

TEST_F(LinkWindows, LinkToAnAnchorTakesWhatIsTyped) {
  Odkaz link(text, nullptr);
  link.AddAnchor(QStringLiteral("Kotva10"));
  link.Present();
  auto* list = Find<QComboBox>(link, "Combo1");
  list->setEditText(QString());
  Click(link, "Command1");
  EXPECT_TRUE(link.isVisible());
  QTest::keyClicks(list, QStringLiteral("kotva1"));
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_FALSE(link.isVisible());
  EXPECT_EQ(text.Text(), "before,<A HREF=\"#kotva1\"> after</A>");
}

TEST_F(LinkWindows, MailBeginsWithTheUsersAddress) {
  MailTo mail(text, std::string("žluť@b.cz"_w), nullptr);
  text.SetText("");
  mail.Present();
  Click(mail, "Command1");
  EXPECT_EQ(text.Text(), "<A HREF=\"mailto:žluť@b.cz\" >mailto na žluť@b.cz</A>"_w);
  EXPECT_FALSE(mail.isVisible());
}

struct DocumentLinkWindow : LinkWindows {
  OdkazNaJiny link{text, Show(), nullptr};

  DocumentLinkWindow() { link.Present(); }
  // The enabled ones of the controls that go with the target.
  std::string State() {
    std::string enabled;
    for (const char* name : {"Frame1", "Text1", "Command1", "Command3"})
      if (Enabled(link, name)) enabled += std::string(enabled.empty() ? "" : " ") + name;
    return enabled;
  }
};

TEST_F(DocumentLinkWindow, TheTargetDecidesWhatIsEnabled) {
  EXPECT_EQ(State(), "Frame1");
  Click(link, "Option2");
  EXPECT_EQ(State(), "Text1 Command1");
  Click(link, "Option1");
  EXPECT_EQ(State(), "Frame1");
  Choose(link, "x.htm");
  EXPECT_EQ(State(), "Frame1 Command1 Command3");
  Click(link, "Check2");
  EXPECT_EQ(State(), "Frame1 Command1");
  Click(link, "Option2");
  SetField(link, "Text2", QString());
  SetField(link, "Text1", QStringLiteral("http://a.cz"));
  EXPECT_EQ(State(), "Text1");  // required: for want of a fragment
  Click(link, "Option2");
  EXPECT_EQ(State(), "Text1 Command1");
  SetField(link, "Text1", QStringLiteral("http://a.c"));
  SetField(link, "Text2", QStringLiteral("k"));
  SetField(link, "Text1", QStringLiteral("http://a.cz"));
  EXPECT_EQ(State(), "Text1 Command1");
}

TEST_F(DocumentLinkWindow, LinksToAFile) {
  Choose(link, "x.htm");
  Click(link, "Command3");
  EXPECT_EQ(shown, std::vector<std::string>{temp.Path() + "/x.htm"});
  Click(link, "Command1");
  EXPECT_FALSE(link.isVisible());
  EXPECT_EQ(text.Text(), "before,<A HREF=\"file://" + temp.Path() + "/x.htm\"> after</A>");
  link.Present();
  text.SetText("");
  Click(link, "Check2");
  Click(link, "Check1");
  Click(link, "Check3");
  SetField(link, "Text2", QStringLiteral("a"));
  auto* frame = Find<QComboBox>(link, "Combo2");
  frame->setEditText(QStringLiteral("_top"));
  Click(link, "Command1");
  EXPECT_EQ(text.Text(), "<A HREF=\"x.htm#a\" TARGET=\"_top\">Odkaz na x.htm#a</A>");
}

TEST_F(DocumentLinkWindow, LinksToAnAddress) {
  Click(link, "Option2");
  Click(link, "Check1");
  SetField(link, "Text1", QStringLiteral("http://žába.cz"));
  SetField(link, "Text2", QString());
  EXPECT_FALSE(Enabled(link, "Combo2"));
  text.SetText("");
  Click(link, "Command1");
  EXPECT_EQ(text.Text(), "<A HREF=\"http://žába.cz\">Odkaz na http://žába.cz</A>"_w);
}

TEST_F(DocumentLinkWindow, KeysAloneWorkIt) {
  QApplication::setActiveWindow(&link);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&link));
  // By way of the window, as the system's keys come, so that access keys work.
  const auto press = [this](Qt::Key key, Qt::KeyboardModifiers with = {}) {
    QTest::keyClick(link.windowHandle(), key, with);
  };
  const auto access = [this, &press](Qt::Key key, const char* button) {
    press(key, Qt::AltModifier);  // The button stays down for a moment.
    EXPECT_TRUE(QTest::qWaitFor([this, button] { return Find<QAbstractButton>(link, button)->isChecked(); })) << button;
  };
  access(Qt::Key_A, "Option2");
  press(Qt::Key_Tab);
  EXPECT_EQ(link.focusWidget(), Find<QWidget>(link, "Text1"));
  press(Qt::Key_End);
  QTest::keyClicks(link.focusWidget(), QStringLiteral("a.cz"));
  access(Qt::Key_K, "Check1");
  access(Qt::Key_T, "Check3");
  press(Qt::Key_Tab);
  EXPECT_EQ(link.focusWidget(), Find<QWidget>(link, "Combo2"));
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  press(Qt::Key_Return);
  EXPECT_EQ(text.Text(), "before,<A HREF=\"http://a.cz#Kotva1\" TARGET=\"_self\"> after</A>");
  link.Present();
  press(Qt::Key_Escape);
  EXPECT_FALSE(link.isVisible());
}

struct SamplesWindow : LinkWindows {
  SettingsRecord settings;
  Template window{text, settings, nullptr};
  QTreeWidget* list = Find<QTreeWidget>(window, "ListView1");

  SamplesWindow() { window.Present(); }
  void Choose(int row) {
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->topLevelItem(row)).center());
  }
  std::string Preview() { return std::string(ViewOf(Find<TextBox>(window, "Text1")->Text())); }
};

TEST_F(SamplesWindow, ShowsTheSampleOfTheRowAnewAtEachClick) {
  ASSERT_EQ(list->topLevelItemCount(), 11);
  EXPECT_EQ(list->topLevelItem(10)->text(1), QStringLiteral("file_ID.diz"));
  EXPECT_FALSE(list->topLevelItem(6)->icon(0).pixmap(20).isNull());
  EXPECT_EQ(Preview(), "Vyber dokument\r\n");
  settings.UserEmail = "a@b";
  Choose(0);
  EXPECT_EQ(Preview(), SampleText("HTML1", settings));
  EXPECT_EQ(LabelText(window, "Label1"), "Zobrazení dokumentu :Jednoduchý HTML dokument 1");
  settings.UserEmail = "c@d";
  Choose(0);
  EXPECT_EQ(Preview(), SampleText("HTML1", settings));
  QTest::keyClick(list, Qt::Key_End);
  EXPECT_EQ(Preview(), SampleText("DIZ1", settings));
}

TEST_F(SamplesWindow, TakesTheDocumentOverAndUndoBringsTheOldOneBack) {
  int changes = 0;
  const Listening heard = text.OnChange([&changes](const TextChange&) { ++changes; });
  Choose(9);
  EXPECT_EQ(changes, 0);
  Click(window, "Command1");
  EXPECT_EQ(text.Text(), SampleText("BAT2", settings));
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(text.Caret(), 0U);
  EXPECT_FALSE(window.isVisible());
  text.Undo();
  EXPECT_EQ(text.Text(), "before, after");
  window.Present();
  EXPECT_EQ(Preview(), SampleText("BAT2", settings));
}

TEST_F(SamplesWindow, KeysChooseFromTheFirstRowOn) {
  QApplication::setActiveWindow(&window);
  list->setFocus();
  EXPECT_EQ(Preview(), "Vyber dokument\r\n");
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(Preview(), SampleText("HTML1", settings));
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(Preview(), SampleText("HTML2", settings));
}

TEST_F(SamplesWindow, WithoutAChoiceItsOwnWordsGoOver) {
  QApplication::setActiveWindow(&window);
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(text.Text(), "Vyber dokument\r\n");
}

TEST(LinkCommands, ShowTheirWindows) {
  ScriptedPlatform platform;
  Program program(platform);
  const std::vector<std::pair<const char*, const char*>> commands = {
      {"mnuobr", "Obrazek"},   {"Image", "Obrazek"},       {"mnukotva", "Kotva"},
      {"mnuodkaz", "Odkaz"},   {"mnumailto", "MailTo"},    {"mnuodkazjiny", "OdkazNaJiný"},
      {"Link", "OdkazNaJiný"}, {"mnutemplate", "Template"}};
  for (const auto& [command, name] : commands) {
    auto* action = program.Main().findChild<QAction*>(QLatin1String(command));
    ASSERT_TRUE(action != nullptr && action->isEnabled()) << command;
    action->trigger();
    QWidget* found = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->isVisible() && window->objectName() == QString::fromUtf8(name)) found = window;
    ASSERT_NE(found, nullptr) << command;
    EXPECT_FALSE(found->isModal());
    found->hide();
  }
}

}  // namespace
}  // namespace pelmar
