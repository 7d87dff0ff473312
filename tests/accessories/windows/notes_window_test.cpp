// The notes window: its pages, its file, the rescue of unsaved notes, its place.
#include <QStyleOptionTab>

#include "accessories/windows/note_tabs.h"
#include "accessories/windows/poznamka.h"
#include "platform/qt/frames/outer_geometry.h"
#include "shell/windows/o.h"
#include "support/program_test.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

// The locks of rescue files are real. All other files are in the scripted platform.
struct NotesWindowTest : ProgramTest {
  TempFolder folder;
  Poznamka* notes = nullptr;

  NotesWindowTest() {
    platform.install_folder = folder.Path() + '/';
    editor.settings.AutosnapDistance = 240;
  }
  [[nodiscard]] std::string& File(const std::string& name = "notes.dat") {
    return platform.files[platform.install_folder + name];
  }
  void OpenOver(const NotesRecord& record) {
    File() = NotesBytes(record);
    notes = &Open<Poznamka>();
  }
  // Starts the notes as the whole program.
  void RunAloneOver(const NotesRecord& record) {
    SettingsRecord settings;
    settings.UserName = settings.UserEmail = "jan";
    File("pelmar.ini") = SettingsBytes(settings);
    File() = NotesBytes(record);
    program.Run("-NOTE");
    notes = &parts.windows.Get<Poznamka>();
  }
};

TEST_F(NotesWindowTest, HasTheEditorsFont) {
  main.SetEditorFontSize(14);
  main.SetEditorBold(true);
  OpenOver({});
  EXPECT_EQ(Named(*notes, "Text1")->font().pointSize(), 14);
  EXPECT_TRUE(Named(*notes, "Text1")->font().bold());
}

TEST_F(NotesWindowTest, ADialogOpensAboveThem) {
  OpenOver({});  // on top of all normal windows
  EXPECT_TRUE(Open<O>().windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(NotesWindowTest, EachTabShowsItsPage) {
  OpenOver({{"first", "second"}});
  notes->Buffer().Type("my ");
  ExpectState(*notes, "TabStrip1=1", "Text1=second");
  Work(*notes, "TabStrip1=0");
  EXPECT_EQ(Marked(notes->Buffer()), "my |first");
}

TEST_F(NotesWindowTest, TheToolbarCopiesAndPastesTheSelection) {
  OpenOver({});
  PutMarked(notes->Buffer(), "[one| two");
  Work(*notes, "Copy!");
  EXPECT_EQ(platform.clipboard, "one");
  PutMarked(notes->Buffer(), "one [two|");
  Work(*notes, "Paste!");
  EXPECT_EQ(Marked(notes->Buffer()), "one one|");
}

TEST_F(NotesWindowTest, OnlyTheCloseWritesTheFileAndAsksNothing) {
  OpenOver({{"first", "second"}});
  notes->Buffer().Type("my ");
  Work(*notes, "TabStrip1=4 Text1=fifth");
  EXPECT_EQ(File(), NotesBytes({{"first", "second"}}));
  platform.TakeCalls();
  Work(*notes, "Close!");
  EXPECT_EQ(File(), NotesBytes({{"my first", "second", "", "", "fifth"}}));
  EXPECT_EQ(platform.calls, std::vector<std::string>{"write " + platform.install_folder + "notes.dat"});
  EXPECT_EQ(parts.windows.Find<Poznamka>(), nullptr);
}

TEST_F(NotesWindowTest, AnOverlongPageCanBeNeitherLeftNorStored) {
  OpenOver({{"first", "second"}});
  notes->Buffer().SetText(std::string(kLongestNote + 1, 'x'));
  platform.answers = {Answer::kOk, Answer::kOk};
  ExpectState(*notes, "TabStrip1=1", "TabStrip1=0");
  EXPECT_FALSE(notes->close());
  EXPECT_TRUE(platform.answers.empty());
  EXPECT_EQ(File(), NotesBytes({{"first", "second"}}));
}

TEST_F(NotesWindowTest, AloneTheCloseStoresThenAsksAndANoKeepsTheWindow) {
  RunAloneOver({{"first"}});
  notes->Buffer().Type("my ");
  platform.on_message = [this] { EXPECT_EQ(File(), NotesBytes({{"my first"}})); };
  platform.answers = {Answer::kNo};
  EXPECT_FALSE(notes->close());
  EXPECT_TRUE(notes->isVisible());
  EXPECT_EQ(platform.calls.back(), R"(message 276 "OPRAVDU UKONČIT Poznámky (Pelmar VEX) ?" "Konec")");
}

TEST_F(NotesWindowTest, AloneAYesEndsTheProgramWhichWritesOnlyTheNotes) {
  RunAloneOver({{"first"}});
  EXPECT_FALSE(main.isVisible());
  platform.TakeCalls();
  platform.answers = {Answer::kYes};
  notes->close();
  EXPECT_EQ(QCoreApplication::exec(), EXIT_SUCCESS);
  EXPECT_EQ(platform.calls.size(), 2u) << platform.TakeCallsInOneLine();  // the write and the question
}

TEST_F(NotesWindowTest, APageThatAnotherCopyStoredMeanwhileStays) {
  RunAloneOver({{"first", "second"}});
  notes->Buffer().Type("my ");
  File() = NotesBytes({{"their first", "their second", "", "x", "y"}});
  platform.answers = {Answer::kOk, Answer::kNo, Answer::kNo};
  notes->close();
  EXPECT_EQ(platform.calls.end()[-2],
            R"(message 0 "Poznámku 1 mezitím změnila i jiná kopie programu. Uložena jsou obě znění." "Poznámky")");
  const std::string both = NotesBytes({{"their first", "their second", "my first", "x", "y"}});
  EXPECT_EQ(File(), both);
  ExpectState(*notes, "", "Text1='their first'");
  notes->close();  // no second message about the page, and no second copy of it
  EXPECT_EQ(File(), both);
  EXPECT_TRUE(platform.answers.empty());
}

TEST_F(NotesWindowTest, UnsavedPagesAreRescuedSoonAndAtAnEndWithoutAClose) {
  OpenOver({});
  Work(*notes, "Text1=typed");
  ASSERT_TRUE(QTest::qWaitFor([this] { return !platform.calls.empty(); }));  // the write
  Work(*notes, "Text1='typed later'");
  parts.windows.Unload<Poznamka>();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  const auto kept = platform.files.lower_bound(platform.install_folder + "notes-rescue-");
  ASSERT_NE(kept, platform.files.end());
  EXPECT_EQ(ReadRescue(kNotesRescue, kept->second), (RescueRecord{1, {{1, "", "typed later"}}}));
}

TEST_F(NotesWindowTest, PagesOfACrashedRunComeBackToTheirPlaces) {
  platform.files[folder.Put("notes-rescue-1-1.pelmar", "")] =
      RescueBytes(kNotesRescue, {2, {{1, "first", "my first"}, {2, "old", "lost"}, {3, "", "x"}}});
  File() = NotesBytes({{"first", "x", "x", "x", "x"}});
  platform.answers = {Answer::kYes, Answer::kOk};
  const QWidget& window = Open("mnupozn");
  EXPECT_EQ(platform.calls.front(),
            "message 52 \"Poznámky minule nebyly uloženy.\r\nPočet zachovaných stránek: 2.\r\n"
            "Vrátit je do poznámek ?\" \"Záchrana\"");
  EXPECT_EQ(platform.calls.back(), "message 64 \"Všechny stránky se do poznámek nevešly. Zbylé jsou v souboru\r\n" +
                                       folder.File("notes-rescued.txt") + "\" \"Záchrana\"");
  EXPECT_EQ(File("notes-rescued.txt"), ReadableNotes({{2, "old", "lost"}}));
  ExpectState(window, "", "TabStrip1=1 Text1=x");
  ExpectState(window, "TabStrip1=0", "Text1='my first'");
}

TEST_F(NotesWindowTest, TheMenuStoresAndRestoresTheCheckpoint) {
  text.SetText("kept");
  Work(main, "mnu_chp_s!");
  text.SetText("spoilt");
  platform.answers = {Answer::kYes};
  Work(main, "mnu_chp_r!");
  EXPECT_EQ(text.Text(), "kept");
  Work(main, "mnu_chp_v!");
  EXPECT_TRUE(parts.windows.Get<Poznamka>().isVisible());
}

TEST(NoteTabs, ShowTheirNamesOrInANarrowWindowTheirNumbers) {
  struct Tabs : NoteTabs {
    using NoteTabs::initStyleOption;
  };
  for (const auto& [width, caption] : {std::pair(2000, "Poznámka 5"), {180, "5"}}) {
    Tabs tabs;
    tabs.resize(width, tabs.RowHeight());
    tabs.setExpanding(false);  // as in the form
    QStyleOptionTab fifth;
    tabs.initStyleOption(&fifth, 4);
    EXPECT_EQ(fifth.text.toStdString(), caption) << width;
    EXPECT_EQ(tabs.tabToolTip(4).toStdString(), "Poznámka 5");
    EXPECT_EQ(tabs.tabData(4).toString().toStdString(), "Note5");
  }
}

TEST_F(NotesWindowTest, DocksBesideTheMainWindow) {
  OpenOver({});
  ASSERT_TRUE(QTest::qWaitForWindowExposed(notes));
  main.show();
  main.SetPlace({0, 1500, 6000, 4500});
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&main));
  Work(*notes, "Dock!");
  const TwipsRect place = main.Place();
  const int right = place.left + place.width;
  const TwipsRect beside{right, place.top, ScreenTwips(*notes).width - right, place.height};
  static_cast<void>(QTest::qWaitFor([&] { return OuterGeometry(*notes) == beside; }));
  EXPECT_EQ(OuterGeometry(*notes), beside);
}

}  // namespace
}  // namespace pelmar
