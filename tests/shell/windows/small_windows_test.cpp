#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "platform/qt/controls/text_box.h"
#include "platform/qt/convert.h"
#include "program/program.h"
#include "shell/windows/config.h"
#include "shell/windows/hlp.h"
#include "shell/windows/o.h"
#include "shell/windows/pass.h"
#include "shell/windows/start.h"
#include "support/controls.h"
#include "support/scripted_platform.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

TEST(PassWindow, OpensForTheRightPasswordOnly) {
  ScriptedPlatform platform;
  SettingsRecord settings;
  settings.LockPassword = "tajné"_w;
  std::vector<bool> hidden;
  Pass pass(
      settings, platform, [&](bool hide) { hidden.push_back(hide); }, nullptr);
  EXPECT_EQ(pass.windowTitle(), QStringLiteral("Heslo !"));
  auto* field = Find<QLineEdit>(pass, "Text1");
  EXPECT_EQ(field->maxLength(), 8);
  Inside([&] {
    EXPECT_EQ(hidden, std::vector<bool>{true});
    QTest::keyClick(&pass, Qt::Key_Escape);
    pass.close();
    EXPECT_TRUE(pass.isVisible());  // the lock has no way out
    platform.answers = {Answer::kOk};
    QTest::keyClicks(field, QStringLiteral("wrong"));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(platform.calls.back(), "message 64 \"Špatné helso!\" \"Zámek\"");
    EXPECT_TRUE(field->text().isEmpty());
    EXPECT_TRUE(pass.isVisible());
    field->setText(QStringLiteral("tajné"));
    Find<QPushButton>(pass, "Command1")->click();
  });
  pass.Run();
  EXPECT_EQ(hidden, (std::vector<bool>{true, false}));
}

TEST(PassWindow, AnEmptyPasswordOpensAtOnce) {
  ScriptedPlatform platform;
  const SettingsRecord settings;
  Pass pass(
      settings, platform, [](bool) {}, nullptr);
  Inside([&] { QTest::keyClick(Find<QLineEdit>(pass, "Text1"), Qt::Key_Return); });
  pass.Run();
  EXPECT_TRUE(platform.calls.empty());
}

struct StartTest : testing::Test {
  SettingsRecord settings;
  std::string went;
  Start start{settings,
              {[this] { went += "main "; }, [this] { went += "open "; },
               [this] {
                 went += "config ";
                 settings.UserName = "Eva";
               }}};
};

TEST_F(StartTest, ButtonsKeysAndTheCloseBoxLeadToTheEditor) {
  start.Present();
  Find<QPushButton>(start, "Command1")->click();
  EXPECT_FALSE(start.isVisible());
  start.Present();
  QTest::keyClick(&start, Qt::Key_Shift);  // no key of its own
  EXPECT_TRUE(start.isVisible());
  QTest::keyClick(Find<QCheckBox>(start, "Check1"), Qt::Key_Space);
  EXPECT_FALSE(start.isVisible());
  start.Present();
  start.close();
  EXPECT_EQ(went, "main main main ");
  start.Present();
  Find<QPushButton>(start, "Command2")->click();
  EXPECT_EQ(went, "main main main main open ");
}

TEST_F(StartTest, CheckBoxAndNameChangeTheSettings) {
  settings.UserName = "Jan";
  auto* check = Find<QCheckBox>(start, "Check1");
  EXPECT_TRUE(check->isChecked());  // ShowStart is false
  check->setChecked(false);
  EXPECT_TRUE(settings.ShowStart);
  check->setChecked(true);
  EXPECT_FALSE(settings.ShowStart);
  start.Present();
  auto* name = Find<QLabel>(start, "Label9");
  EXPECT_EQ(name->text(), QStringLiteral("Jan"));
  QTest::mouseClick(name, Qt::LeftButton);
  EXPECT_EQ(went, "config ");
  EXPECT_EQ(name->text(), QStringLiteral("Eva"));
}

TEST(HlpWindow, ReadsTheFileAtEachOpeningAndSearchesIt) {
  ScriptedPlatform platform;
  Program program(platform);
  const auto open = [&]() -> Hlp& {
    program.Main().findChild<QAction*>(QStringLiteral("mnuhlp"))->trigger();
    return program.Windows().Get<Hlp>();
  };
  platform.answers = {Answer::kOk, Answer::kOk};
  Find<QPushButton>(open(), "Command1")->click();
  Find<QPushButton>(open(), "Command1")->click();
  EXPECT_TRUE(platform.answers.empty());  // told at both
  platform.files["/install/pelmar.txt"] = "there now";
  Hlp& help = open();
  const auto* text = Find<TextBox>(help, "Text1");
  EXPECT_EQ(ViewOf(text->Text()), "there now");
  EXPECT_EQ(&open(), &help);  // on show it stays as it is
  EXPECT_EQ(Find<QLineEdit>(help, "Text2")->text(), QStringLiteral("Najít"));
  Find<QLineEdit>(help, "Text2")->setText(QStringLiteral("NOW"));
  platform.answers = {Answer::kNo};
  QTest::keyClick(Find<QLineEdit>(help, "Text2"), Qt::Key_Return);
  EXPECT_EQ(ViewOf(text->SelText()), "now");
}

TEST(Program, WindowsThatBeginAnewStandAtTheCentreAgain) {
  ScriptedPlatform platform;
  Program program(platform);
  const auto open = [&](const char* item, const char* name) {
    program.Main().findChild<QAction*>(QString::fromLatin1(item))->trigger();
    const QWidgetList windows = QApplication::topLevelWidgets();
    QWidget* window = *std::ranges::find_if(windows, &QWidget::isVisible);
    EXPECT_EQ(window->objectName(), QString::fromUtf8(name));
    return window;
  };
  for (const auto& [item, name] : {std::pair{"mnumore", "Visual"}, {"mnupresnvyb", "Výběr"}}) {
    QWidget* window = open(item, name);
    const QPoint centre = window->pos();
    window->move(1, 1);
    window->close();
    window = open(item, name);
    EXPECT_EQ(window->pos(), centre) << name;
    window->close();
  }
}

TEST(AboutWindow, PlaysWithTheNameUnderTheMouse) {
  ScriptedPlatform platform;
  SettingsRecord settings;
  settings.UserName = "Jan";
  O about(settings, platform, nullptr);
  about.Present();
  EXPECT_EQ(Find<QLabel>(about, "Label3")->text(), QStringLiteral("Jan"));
  EXPECT_TRUE(
      ViewOf(Find<TextBox>(about, "Text1")->Text()).ends_with("\r\n====================\r\nPoznámka této verze:"_w));
  auto* name = Find<QLabel>(about, "Label2");
  QTest::mouseMove(&about, QPoint(3, 3));
  QTest::mouseMove(&about, QPoint(5, 5));
  EXPECT_GE(platform.reseeds, 1);
  EXPECT_EQ(name->text().toLower(), QStringLiteral("orvilanths pelmar vex"));
  Find<QPushButton>(about, "Command1")->click();
  EXPECT_EQ(platform.calls.back().substr(0, 46), "about \"Orvilanths Pelmar VEX v8.9.2.1b CZ\" \"Au");
}

TEST(ConfigWindow, StoresWhatIsValidAndEscapePressesOk) {
  ScriptedPlatform platform;
  SettingsRecord settings;
  int stored = 0;
  Config config(
      settings, platform, [&] { ++stored; }, nullptr);
  Inside([&] {
    platform.answers = {Answer::kOk};
    QTest::keyClick(&config, Qt::Key_Escape);
    EXPECT_EQ(platform.calls.back(), "message 64 \"Vyplňte prosím své jméno.\" \"Config\"");
    EXPECT_TRUE(config.isVisible());
    EXPECT_EQ(config.focusWidget(), Find<QLineEdit>(config, "Text1"));
    Find<QLineEdit>(config, "Text1")->setText(QStringLiteral("Jiří"));
    platform.answers = {Answer::kOk};
    QTest::keyClick(&config, Qt::Key_Escape);
    EXPECT_EQ(config.focusWidget(), Find<QLineEdit>(config, "Text2"));  // which the message names
    Find<QLineEdit>(config, "Text2")->setText(QStringLiteral("j@x.cz"));
    QTest::keyClick(&config, Qt::Key_Escape);
  });
  config.Run();
  EXPECT_EQ(stored, 1);
  EXPECT_EQ(settings.UserName, "Jiří"_w);
  Inside([&] { config.close(); });  // the system's close stores nothing
  config.Run();
  EXPECT_EQ(stored, 1);
}

}  // namespace
}  // namespace pelmar
