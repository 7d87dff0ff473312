#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QTest>

#include "files/windows/otevri.h"
#include "platform/qt/controls/text_box.h"
#include "platform/qt/convert.h"
#include "program/program.h"
#include "shell/windows/config.h"
#include "shell/windows/customize_toolbar.h"
#include "shell/windows/hlp.h"
#include "shell/windows/o.h"
#include "shell/windows/pass.h"
#include "shell/windows/start.h"
#include "support/controls.h"
#include "support/scripted_platform.h"
#include "support/steps.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

// The small windows of the editor, as their commands show them.
struct SmallWindows : testing::Test {
  ScriptedPlatform platform;
  SettingsRecord settings;
  std::string went;

  void Key(QWidget& window, Qt::Key key, const char* field = nullptr) {
    QTest::keyClick(field != nullptr ? Find<QWidget>(window, field) : &window, key);
  }
};

TEST_F(SmallWindows, TheLockOpensForTheRightPasswordOnly) {
  settings.LockPassword = "tajné"_w;
  Pass pass(
      settings, platform, [&](bool hide) { went += hide ? "hide " : "show "; }, nullptr);
  Inside([&] {
    EXPECT_EQ(went, "hide ");
    Key(pass, Qt::Key_Escape);
    pass.close();
    platform.answers = {Answer::kOk};
    Work(pass, "Text1=wrong");
    Key(pass, Qt::Key_Return, "Text1");
    EXPECT_EQ(platform.calls.back(), "message 64 \"Špatné helso!\" \"Zámek\"");
    EXPECT_EQ(State(pass, "Text1"), "Text1=");
    EXPECT_TRUE(pass.isVisible());  // the lock has no way out
    Work(pass, "Text1=tajné Command1!");
  });
  pass.Run();
  EXPECT_EQ(went, "hide show ");
}

TEST_F(SmallWindows, TheWelcomeLeadsToTheEditorHoweverItIsLeft) {
  Start start(settings, {[this] { went += "main "; }, [this] { went += "open "; },
                         [this] { went += "config ", settings.UserName = "Eva"; }});
  settings.UserName = "Jan";
  EXPECT_EQ(State(start, "Check1"), "Check1=1");  // ShowStart is false
  const std::function<void()> ways[] = {[&] { Work(start, "Command1!"); }, [&] { Key(start, Qt::Key_Space, "Check1"); },
                                        [&] { start.close(); }, [&] { Work(start, "Command2!"); }};
  for (const auto& leave : ways) {
    start.Present();
    Key(start, Qt::Key_Shift);  // no key of its own
    EXPECT_TRUE(start.isVisible());
    leave();
    EXPECT_FALSE(start.isVisible());
  }
  EXPECT_EQ(went, "main main main main open ");
  start.Present();
  EXPECT_EQ(State(start, "Label9"), "Label9=Jan");
  QTest::mouseClick(Find<QLabel>(start, "Label9"), Qt::LeftButton);
  EXPECT_EQ(State(start, "Label9"), "Label9=Eva");
  for (const bool show : {true, false}) {
    Work(start, "Check1!");
    EXPECT_EQ(settings.ShowStart, show);
  }
}

TEST_F(SmallWindows, TheWelcomesSecondButtonOpensAFile) {
  Program program(platform);
  Work(program.Windows().Get<Start>(), "Command2!");
  EXPECT_TRUE(program.Main().isVisible());
  EXPECT_TRUE(program.Windows().Get<Otevri>().isVisible());
}

// A window at the centre again is one that was made anew, which reads anew too.
TEST_F(SmallWindows, ThoseThatBeginAnewStandAtTheCentreAgain) {
  Program program(platform);
  platform.files["/install/pelmar.txt"] = "at first";
  const auto open = [&](const char* item) {
    program.Main().findChild<QAction*>(QLatin1String(item))->trigger();
    const QWidgetList windows = QApplication::topLevelWidgets();
    return *std::ranges::find_if(windows, &QWidget::isVisible);
  };
  for (const char* item : {"mnumore", "mnupresnvyb", "mnuhlp"}) {
    QWidget* window = open(item);
    EXPECT_EQ(open(item), window);  // on show it stays as it is
    const QPoint centre = window->pos();
    window->move(1, 1);
    window->close();
    platform.files["/install/pelmar.txt"] = "there now";
    window = open(item);
    EXPECT_EQ(window->pos(), centre) << item;
    window->close();
  }
  QWidget* help = open("mnuhlp");
  EXPECT_EQ(State(*help, "Text2"), "Text2=Najít");
  Work(*help, "Text2=NOW");
  platform.answers = {Answer::kNo, Answer::kNo};
  Key(*help, Qt::Key_Return, "Text2");
  Work(*help, "Command5!");
  EXPECT_TRUE(platform.answers.empty());
  EXPECT_EQ(ViewOf(Find<TextBox>(*help, "Text1")->SelText()), "now");
  Work(*help, "Command1!");
  EXPECT_FALSE(help->isVisible());
}

TEST_F(SmallWindows, TheToolbarFollowsItsList) {
  Program program(platform);
  auto& window = program.Windows().Get<CustomizeToolbar>();
  window.Present();
  auto* list = Find<QListWidget>(window, "Buttons");
  const auto shown = [&] {
    std::string names;
    for (const QAction* action : program.Main().Toolbar().actions())
      if (action->isVisible()) names += action->isSeparator() ? "| " : action->objectName().toStdString() + ' ';
    return names;
  };
  const std::string initial = shown();
  EXPECT_TRUE(initial.starts_with("New Newhtml Open | Recent | Save "));
  Work(window, "Up! Buttons=1 Up! Buttons=4 Down!");  // the first one can't go up
  list->item(0)->setCheckState(Qt::Unchecked);
  EXPECT_TRUE(shown().starts_with("New Open | | Recent Save ")) << shown();
  window.hide();
  window.Present();
  EXPECT_EQ(list->item(0)->checkState(), Qt::Unchecked);
  EXPECT_EQ(list->item(0)->text(), QStringLiteral("Nový HTML"));
  Work(window, "Initial!");
  EXPECT_EQ(shown(), initial);
  EXPECT_EQ(list->item(0)->checkState(), Qt::Checked);
}

TEST_F(SmallWindows, AboutPlaysWithTheNameUnderTheMouse) {
  settings.UserName = "Jan";
  O about(settings, platform, nullptr);
  about.Present();
  EXPECT_EQ(State(about, "Label3"), "Label3=Jan");
  EXPECT_TRUE(
      ViewOf(Find<TextBox>(about, "Text1")->Text()).ends_with("\r\n====================\r\nPoznámka této verze:"_w));
  QTest::mouseMove(&about, QPoint(3, 3));
  QTest::mouseMove(&about, QPoint(5, 5));
  EXPECT_GE(platform.reseeds, 1);
  EXPECT_EQ(Find<QLabel>(about, "Label2")->text().toLower(), QStringLiteral("orvilanths pelmar vex"));
  Work(about, "Command1!");
  EXPECT_EQ(platform.calls.back(), "about \"Orvilanths Pelmar VEX v8.9.2.1b CZ\" \"Autor: Orvilanths\"");
}

TEST_F(SmallWindows, ConfigStoresWhatIsValidAndEscapePressesOk) {
  Config config(
      settings, platform, [this] { went += "stored "; }, nullptr);
  const struct {
    const char *steps, *message, *field;  // which the message names
  } refused[] = {{"Text1= Text2= Check1! Text3=a Text4=A", "Vyplňte prosím své jméno.", "Text1"},
                 {"Text1=Jiří", "Vyplňte prosím E-m@il.", "Text2"},
                 {"Text2=j@x.cz", "Zkontrolujete zprávnot zadaného hesla.", "Text3"}};
  const auto stored = [this] { return settings.UserName + ' ' + settings.UserEmail + ' ' + settings.LockPassword; };
  Inside([&] {
    for (const auto& one : refused) {
      platform.answers = {Answer::kOk};
      Work(config, one.steps);
      Key(config, Qt::Key_Escape);
      EXPECT_EQ(platform.calls.back(), "message 64 \"" + std::string(one.message) + "\" \"Config\"");
      EXPECT_EQ(config.focusWidget(), Find<QWidget>(config, one.field)) << one.field;
    }
    Work(config, "Text4=a");
    Key(config, Qt::Key_Escape);
  });
  config.Run();
  EXPECT_EQ(stored(), "Jiří j@x.cz a"_w);
  // required: the password goes in without the check mark and without a comparison
  Inside([&] { Work(config, "Text3=b Command1!"); });
  config.Run();
  EXPECT_EQ(stored(), "Jiří j@x.cz b"_w);
  Inside([&] { config.close(); });  // the system's close stores nothing
  config.Run();
  EXPECT_EQ(went, "stored stored ");
}

}  // namespace
}  // namespace pelmar
