#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QFile>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolBar>

#include "accessories/windows/poznamka.h"
#include "platform/qt/controls/text_box.h"
#include "platform/qt/convert.h"
#include "platform/qt/outer_geometry.h"
#include "platform/twips.h"
#include "support/controls.h"
#include "support/plain_view.h"
#include "support/scripted_platform.h"

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
  }
  [[nodiscard]] std::string& File() { return platform.files[platform.install_folder + "notes.dat"]; }
  [[nodiscard]] std::string RescuePath() const {
    for (const auto& [path, bytes] : platform.files)
      if (path.find("/notes-rescue-") != std::string::npos) return path;
    return {};
  }
  [[nodiscard]] QStringList Locks() const {
    return QDir(folder.path()).entryList({QStringLiteral("notes-rescue-*")}, QDir::Files);
  }
  Poznamka& Load(StartMode mode = StartMode::kEditor) {
    notes = std::make_unique<Poznamka>(
        Poznamka::Surroundings{platform, file_number, settings, view, nullptr, mode, [this] { ++ends; }});
    platform.calls.clear();
    return *notes;
  }
  [[nodiscard]] QTabBar& Tabs() const { return *Find<QTabBar>(*notes, "TabStrip1"); }
  void Press(const char* key) const { Find<QAction>(*notes, key)->trigger(); }
};

TEST_F(PoznamkaTest, KeepsFivePagesAndStoresThemAtTheEnd) {
  File() = NotesBytes({{"first", "second"}});
  view.look = {"Courier New", 0, 0, 14, true, false};
  Load().Present();
  EXPECT_TRUE(notes->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_EQ(Find<TextBox>(*notes, "Text1")->font().pointSize(), 14);
  EXPECT_TRUE(Find<TextBox>(*notes, "Text1")->font().bold());
  EXPECT_EQ(notes->Text().Text(), "first");
  notes->showMinimized();
  notes->Present();
  EXPECT_FALSE(notes->isMinimized());
  notes->Text().Type("my ");
  Tabs().setCurrentIndex(1);
  EXPECT_EQ(notes->Text().Text(), "second");
  ASSERT_TRUE(QTest::qWaitForWindowActive(notes.get()));
  QTest::keyClick(notes.get(), Qt::Key_5, Qt::AltModifier);
  EXPECT_EQ(Tabs().tabData(Tabs().currentIndex()).toString(), QStringLiteral("Note5"));
  // A Czech keyboard has other characters on the keys of the numbers.
  for (const auto& [code, key] : {std::pair(11u, "Note2"), {14u, "Note5"}, {15u, "Note5"}}) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Plus, Qt::AltModifier, code, 0, 0, QStringLiteral("+"));
    QCoreApplication::sendEvent(Find<TextBox>(*notes, "Text1"), &press);
    EXPECT_EQ(Tabs().tabData(Tabs().currentIndex()).toString(), QLatin1String(key)) << code;
  }
  notes->Text().SetText("fifth");
  EXPECT_EQ(File(), NotesBytes({{"first", "second"}}));  // only the close writes
  notes->close();
  EXPECT_EQ(File(), NotesBytes({{"my first", "second", "", "", "fifth"}}));
  EXPECT_EQ(ends, 1);
  EXPECT_EQ(platform.calls.size(), 1u);  // the write, and no question
}

TEST_F(PoznamkaTest, CopiesAndPastes) {
  Load().Present();
  notes->Text().SetText("one two");
  notes->Text().Select(0, 3);
  EXPECT_EQ(Find<QAction>(*notes, "Copy")->toolTip(), QStringLiteral("Kopírovat výbět"));  // required: misspelled
  Press("Copy");
  EXPECT_EQ(platform.clipboard, "one");
  notes->Text().Select(4, 7);
  Press("Paste");
  EXPECT_EQ(notes->Text().Text(), "one one");
  Press("Close");
  EXPECT_EQ(ends, 1);
}

TEST_F(PoznamkaTest, AsTheWholeProgramItAsksBehindTheWrite) {
  Load(StartMode::kNotes).Present();
  notes->Text().SetText("kept");
  platform.answers = {Answer::kNo, Answer::kYes};
  notes->close();
  EXPECT_TRUE(notes->isVisible());
  EXPECT_EQ(ends, 0);
  EXPECT_EQ(File(), NotesBytes({{"kept"}}));
  EXPECT_EQ(platform.TakeCalls(),
            (std::vector<std::string>{"write " + platform.install_folder + "notes.dat",
                                      "message 276 \"OPRAVDU UKONČIT Poznámky (Pelmar VEX) ?\" \"Konec\""}));
  notes->close();
  EXPECT_EQ(ends, 1);
}

TEST_F(PoznamkaTest, AnOverlongPageIsRefusedBeforeAnythingIsLost) {
  File() = NotesBytes({{"first", "second"}});
  Load().Present();
  const std::string longer(kLongestNote + 1, 'x');
  notes->Text().SetText(longer);
  platform.answers = {Answer::kOk, Answer::kOk};
  Tabs().setCurrentIndex(1);
  EXPECT_EQ(Tabs().currentIndex(), 0);
  EXPECT_EQ(notes->Text().Text(), longer);
  notes->close();
  EXPECT_EQ(ends, 0);
  EXPECT_TRUE(notes->isVisible());
  EXPECT_EQ(File(), NotesBytes({{"first", "second"}}));
  EXPECT_EQ(platform.calls.size(), 2u);
  notes->Text().EraseAfter(1);
  notes->close();
  EXPECT_EQ(ReadNotes(File()).Page(1).size(), kLongestNote);
}

TEST_F(PoznamkaTest, WhatIsNotStoredIsKeptUntilTheClose) {
  Load();
  notes->Text().SetText("typed");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !Locks().isEmpty(); }, 2000));
  notes.reset();  // an end of the program without a close
  EXPECT_EQ(File(), "");
  EXPECT_EQ(ReadRescue(kNotesRescue, platform.files[RescuePath()]), (RescueRecord{1, {{1, "", "typed"}}}));
  platform.answers = {Answer::kYes};
  Load().Present();
  QFile(QString::fromStdString(RescuePath())).open(QIODevice::WriteOnly);  // what only the platform has
  notes->OfferRescued();
  notes->close();
  EXPECT_EQ(Locks(), QStringList());
  EXPECT_EQ(File(), NotesBytes({{"typed"}}));
}

// Two copies that died: real files tell that they are there, the bytes are the platform's.
TEST_F(PoznamkaTest, ADeadCopysPagesComeBackButStayUnstored) {
  const std::pair<const char*, RescueRecord> dead[] = {
      {"notes-rescue-1-1.pelmar", {2, {{1, "first", "FIRST"}, {2, "", "SECOND"}}}},
      {"notes-rescue-2-1.pelmar", {1, {{1, "first", "another first"}, {3, "", ""}}}}};  // the last is known
  for (const auto& [name, record] : dead) {
    QFile(folder.filePath(QLatin1String(name))).open(QIODevice::WriteOnly);
    platform.files[platform.install_folder + name] = RescueBytes(kNotesRescue, record);
  }
  File() = NotesBytes({{"first"}});
  Load().Present();
  platform.answers = {Answer::kYes};
  notes->OfferRescued();
  EXPECT_EQ(
      platform.calls[0],
      "message 52 \"Poznámky minule nebyly uloženy. Zachované stránky: 3.\r\nVrátit je do poznámek ?\" \"Záchrana\"");
  EXPECT_EQ(Locks().size(), 1);  // the lock of what this copy keeps
  EXPECT_EQ(Tabs().currentIndex(), 1);
  EXPECT_EQ(notes->Text().Text(), "SECOND");
  EXPECT_EQ(File(), NotesBytes({{"first"}}));
  notes->OfferRescued();  // asked once
  notes->close();
  EXPECT_EQ(File(), NotesBytes({{"FIRST", "SECOND", "another first"}}));
}

TEST_F(PoznamkaTest, LaysItsControlsOut) {
  Load().resize(450, 300);
  notes->Present();
  const auto* toolbar = Find<QToolBar>(*notes, "Toolbar1");
  EXPECT_EQ(Tabs().geometry(), QRect(0, toolbar->height(), 450, 300 - toolbar->height()));
  EXPECT_EQ(Find<TextBox>(*notes, "Text1")->geometry(),
            QRect(0, toolbar->height() + 22, 450, 300 - toolbar->height() - 22));
}

TEST_F(PoznamkaTest, TheTickDocksAndSnaps) {
  Load().Present();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(notes.get()));
  const auto place = [&] { return OuterGeometry(*notes); };
  const QSize screen = ScreenTwips(*notes);
  SetOuterPlace(*notes, {150, 225, 4500, 4500});
  EXPECT_TRUE(QTest::qWaitFor([&] { return place() == TwipsRect{0, 0, 4500, 4500}; }, 1000));
  Find<QAction>(*notes, "Dock")->setChecked(true);
  const TwipsRect beside{4500, 1500, screen.width() - 4500, 4500};
  EXPECT_TRUE(QTest::qWaitFor([&] { return place() == beside; }, 1000));
  view.state = 2;
  EXPECT_TRUE(QTest::qWaitFor([&] { return place().top == 0 && place().height == screen.height(); }, 1000));
  EXPECT_EQ(place().left + place().width, screen.width());
  EXPECT_EQ(notes->width(), notes->minimumWidth());
}

TEST_F(PoznamkaTest, TheTickRestsWhileNothingMoves) {
  Load().Present();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(notes.get()));
  const auto* timer = Find<QTimer>(*notes, "Timer1");
  EXPECT_EQ(timer->interval(), 10);
  ASSERT_TRUE(QTest::qWaitFor([&] { return timer->interval() > 10; }, 5000));
  SetOuterPlace(*notes, {3000, 3000, 4500, 4500});
  EXPECT_EQ(timer->interval(), 10);
  notes->hide();
  EXPECT_FALSE(timer->isActive());
}

}  // namespace
}  // namespace pelmar
