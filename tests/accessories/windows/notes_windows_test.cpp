#include <gtest/gtest.h>

#include <QDir>
#include <QTabBar>
#include <QTemporaryDir>

#include "accessories/windows/poznamka.h"
#include "platform/qt/outer_geometry.h"
#include "platform/twips.h"
#include "program/program.h"
#include "support/plain_view.h"
#include "support/scripted_platform.h"
#include "support/steps.h"

namespace pelmar {
namespace {

// The lock files are real, all others lie in the scripted platform.
struct PoznamkaTest : testing::Test {
  QTemporaryDir folder;
  ScriptedPlatform platform;
  FileNumber file_number;
  SettingsRecord settings;
  PlainView view;
  std::unique_ptr<Poznamka> notes;
  int ends = 0;

  PoznamkaTest() {
    platform.install_folder = Utf8FromQString(folder.path()) + "/";
    settings.AutosnapDistance = 240;
    view.place = {1500, 1500, 3000, 4500};
    view.look = {"Courier New", 0, 0, 14, true, false};
  }
  [[nodiscard]] std::string& File(const std::string& name = "notes.dat") {
    return platform.files[platform.install_folder + name];
  }
  [[nodiscard]] QStringList Locks() const {
    return QDir(folder.path()).entryList({QStringLiteral("notes-rescue-*")}, QDir::Files);
  }
  // A file of a copy that died: a real one tells that it is there, its bytes are the platform's.
  void LeaveBehind(const char* name, const RescueRecord& record) {
    QFile(folder.filePath(QLatin1String(name))).open(QIODevice::WriteOnly);
    File(name) = RescueBytes(kNotesRescue, record);
  }
  // Opens the notes over what is stored.
  void Open(const NotesRecord& record, StartMode mode = StartMode::kEditor) {
    File() = NotesBytes(record);
    notes = std::make_unique<Poznamka>(
        Poznamka::Surroundings{platform, file_number, settings, view, nullptr, mode, [this] { ++ends; }});
    notes->Present();
  }
};

TEST_F(PoznamkaTest, KeepsFivePagesAndStoresThemAtTheEnd) {
  Open({{"first", "second"}});
  EXPECT_TRUE(notes->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  const QFont font = Named(*notes, "Text1")->font();
  EXPECT_TRUE(font.pointSize() == 14 && font.bold());
  notes->showMinimized();
  notes->Present();
  EXPECT_FALSE(notes->isMinimized());
  notes->Text().Type("my ");
  ExpectState(*notes, "TabStrip1=1", "Text1=second");
  ASSERT_TRUE(QTest::qWaitForWindowActive(notes.get()));
  QTest::keyClick(notes.get(), Qt::Key_5, Qt::AltModifier);
  ExpectState(*notes, "", "TabStrip1=4");
  // A Czech keyboard has other characters on the keys of the numbers.
  for (const auto& [code, tab] : {std::pair(11u, "TabStrip1=1"), {14u, "TabStrip1=4"}, {15u, "TabStrip1=4"}}) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Plus, Qt::AltModifier, code, 0, 0, QStringLiteral("+"));
    QCoreApplication::sendEvent(Named(*notes, "Text1"), &press);
    ExpectState(*notes, "", tab);
  }
  Work(*notes, "Text1='one two'");
  notes->Text().Select(0, 3);
  Work(*notes, "Copy!");
  const QString tip = notes->findChild<QAction*>(QStringLiteral("Copy"))->toolTip();
  EXPECT_EQ(tip, QStringLiteral("Kopírovat výbět"));  // required: misspelled
  notes->Text().Select(4, 7);
  ExpectState(*notes, "Paste!", "Text1='one one'");
  EXPECT_EQ(File(), NotesBytes({{"first", "second"}}));  // only the close writes
  platform.TakeCalls();
  Work(*notes, "Close!");
  EXPECT_EQ(File(), NotesBytes({{"my first", "second", "", "", "one one"}}));
  EXPECT_EQ(ends, 1);
  EXPECT_EQ(platform.calls.size(), 1u);  // the write, and no question
}

TEST_F(PoznamkaTest, AsTheWholeProgramItAsksBehindTheWrite) {
  Open({}, StartMode::kNotes);
  Work(*notes, "Text1=kept");
  platform.answers = {Answer::kNo, Answer::kYes};
  platform.on_message = [this] { EXPECT_EQ(File(), NotesBytes({{"kept"}})); };
  notes->close();
  EXPECT_TRUE(notes->isVisible() && ends == 0);
  EXPECT_EQ(platform.calls.back(), "message 276 \"OPRAVDU UKONČIT Poznámky (Pelmar VEX) ?\" \"Konec\"");
  notes->close();
  EXPECT_EQ(ends, 1);
}

TEST_F(PoznamkaTest, AnOverlongPageIsRefusedBeforeAnythingIsLost) {
  Open({{"first", "second"}});
  notes->Text().SetText(std::string(kLongestNote + 1, 'x'));
  platform.answers = {Answer::kOk, Answer::kOk};
  ExpectState(*notes, "TabStrip1=1", "TabStrip1=0");
  notes->close();
  EXPECT_TRUE(notes->isVisible() && ends == 0 && platform.answers.empty());
  EXPECT_EQ(File(), NotesBytes({{"first", "second"}}));
  notes->Text().EraseAfter(1);
  notes->close();
  EXPECT_EQ(ReadNotes(File()), (NotesRecord{{std::string(kLongestNote, 'x'), "second"}}));
}

TEST_F(PoznamkaTest, WhatIsNotStoredIsKeptUntilTheClose) {
  Open({});
  Work(*notes, "Text1=typed");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !Locks().isEmpty(); }, 2000));
  notes.reset();  // an end of the program without a close
  const auto kept = platform.files.upper_bound(platform.install_folder + "notes-rescue-");
  ASSERT_NE(kept, platform.files.end());
  EXPECT_EQ(ReadRescue(kNotesRescue, kept->second), (RescueRecord{1, {{1, "", "typed"}}}));
}

TEST_F(PoznamkaTest, ADeadCopysPagesComeBackButStayUnstored) {
  LeaveBehind("notes-rescue-1-1.pelmar", {2, {{1, "first", "FIRST"}, {2, "", "SECOND"}}});
  LeaveBehind("notes-rescue-2-1.pelmar", {1, {{1, "first", "another first"}, {3, "", ""}}});  // the last is known
  Open({{"first"}});
  platform.answers = {Answer::kYes};
  platform.TakeCalls();
  notes->OfferRescued();
  EXPECT_EQ(
      platform.calls[0],
      "message 52 \"Poznámky minule nebyly uloženy. Zachované stránky: 3.\r\nVrátit je do poznámek ?\" \"Záchrana\"");
  EXPECT_EQ(Locks().size(), 1);  // the lock of what this copy keeps
  ExpectState(*notes, "", "TabStrip1=1 Text1=SECOND");
  EXPECT_EQ(File(), NotesBytes({{"first"}}));
  notes->OfferRescued();  // asked once
  notes->close();
  EXPECT_EQ(File(), NotesBytes({{"FIRST", "SECOND", "another first"}}));
  EXPECT_EQ(Locks(), QStringList());
}

TEST(NotesWindows, HoldACheckpoint) {
  ScriptedPlatform platform;
  Program program(platform);
  TextBuffer& text = program.Main().Text().Buffer();
  text.SetText("kept");
  Work(program.Main(), "mnu_chp_s!");
  text.SetText("spoilt");
  platform.answers = {Answer::kYes};
  Work(program.Main(), "mnu_chp_r! mnu_chp_v!");
  EXPECT_EQ(text.Text(), "kept");
  EXPECT_TRUE(program.Windows().Get<Poznamka>().isVisible());
}

TEST_F(PoznamkaTest, TheTickDocksAndSnapsAndRestsWhileNothingMoves) {
  Open({});
  const auto* tabs = notes->findChild<QTabBar*>();
  for (const auto& [width, caption] : {std::pair(900, "Poznámka 1 Poznámka 5"), {200, "1 5"}, {450, "1 5"}}) {
    notes->resize(width, 300);
    EXPECT_EQ((tabs->tabText(0) + u' ' + tabs->tabText(4)).toStdString(), caption) << width;
  }
  const int toolbar = Named(*notes, "Toolbar1")->height();
  EXPECT_EQ(Named(*notes, "TabStrip1")->geometry(), QRect(0, toolbar, 450, 300 - toolbar));
  EXPECT_EQ(Named(*notes, "Text1")->geometry(), QRect(0, toolbar + 22, 450, 300 - toolbar - 22));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(notes.get()));
  const auto place = [&] { return OuterGeometry(*notes); };
  const QSize screen = ScreenTwips(*notes);
  const auto* timer = notes->findChild<QTimer*>(QStringLiteral("Timer1"));
  SetOuterPlace(*notes, {150, 225, 4500, 4500});
  EXPECT_EQ(timer->interval(), 10);
  EXPECT_TRUE(QTest::qWaitFor([&] { return place() == TwipsRect{0, 0, 4500, 4500}; }, 1000));
  ASSERT_TRUE(QTest::qWaitFor([&] { return timer->interval() > 10; }, 5000));
  Work(*notes, "Dock!");
  EXPECT_EQ(timer->interval(), 10);
  const TwipsRect beside{4500, 1500, screen.width() - 4500, 4500};
  EXPECT_TRUE(QTest::qWaitFor([&] { return place() == beside; }, 1000));
  view.state = 2;
  EXPECT_TRUE(QTest::qWaitFor([&] { return place().top == 0 && place().height == screen.height(); }, 1000));
  EXPECT_EQ(place().left + place().width, screen.width());
  EXPECT_EQ(notes->width(), notes->minimumWidth());
  notes->showMaximized();
  EXPECT_TRUE(QTest::qWaitFor([&] { return place().width == screen.width(); }, 1000));
  QTest::qWait(50);
  EXPECT_EQ(place().width, screen.width());  // it stays where it is then
  notes->hide();
  EXPECT_FALSE(timer->isActive());
}

}  // namespace
}  // namespace pelmar
