// The documents, and the files that keep those that aren't saved.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "accessories/notes.h"
#include "platform/runtime_error.h"
#include "program/session.h"
#include "shell/rescue_file.h"
#include "shell/rescue_store.h"
#include "shell/rescued_documents.h"
#include "support/document_state.h"
#include "support/temp_folder.h"

namespace pelmar {
namespace {

struct Desk {
  TextBuffer text;
  Documents documents{text};

  void Type(const std::string& more) {
    text.SetSelStart(text.Size());
    text.Type(more);
  }
  std::string SwitchTo(int tab) {
    documents.SwitchTo(tab);
    return StateOf(documents);
  }
};

struct DocumentsTest : testing::Test, Desk {};

TEST_F(DocumentsTest, AChangeMarksTheTitleAndASwitchKeepsTextPathAndMark) {
  EXPECT_EQ(StateOf(documents), "()||||0");
  Type("a");
  EXPECT_EQ(StateOf(documents), "()*||||1");  // the mark of the current tab lives in the title alone
  std::string told;                           // each title once, when all is there
  const Listening heard =
      documents.title_changed.Add([&] { told += documents.Title() + documents.CurrentPath() + '\n'; });
  documents.MakeCurrent("/a/one.txt", "one");
  EXPECT_EQ(StateOf(documents), "(/a/one.txt)|one.txt|/a/one.txt|/a/one.txt|0");
  Type("!");
  EXPECT_EQ(SwitchTo(3), "()|||/a/one.txt|1");
  EXPECT_EQ(text.Text(), "");
  Type("three");
  EXPECT_EQ(StateOf(documents), "()*||||2");
  // Unsaved by its flag and by the title, but counted once.
  EXPECT_EQ(SwitchTo(1), "(/a/one.txt)*|one.txt|/a/one.txt|!|2");
  EXPECT_EQ(text.Text() + std::to_string(text.SelStart()), "one!0");
  EXPECT_FALSE(text.CanUndo());
  EXPECT_EQ(told,
            "Pelmar VEX (/a/one.txt)/a/one.txt\nPelmar VEX (/a/one.txt)*/a/one.txt\nPelmar VEX ()\nPelmar VEX ()*\n"
            "Pelmar VEX (/a/one.txt)*/a/one.txt\n");
  EXPECT_EQ(documents.EmptyTab(), 2);
  documents.SwitchTo(2);
  Type("x");
  text.SetText("");  // emptied by the person, so it isn't free
  documents.SwitchTo(1);
  EXPECT_EQ(documents.EmptyTab(), 4);
}

// required: the change that a switch raises still writes the path of the tab that was left
TEST_F(DocumentsTest, EnteredSlotHoldsTheLeftPathUntilTheNextChange) {
  documents.MakeCurrent("/a/one.txt", "one");
  documents.SwitchTo(2);
  EXPECT_EQ(AllFilesText(documents),
            "Soubor:/a/one.txt\r\none\r\n\r\nSoubor:/a/one.txt\r\n\r\n\r\n"
            "Soubor:\r\n\r\n\r\nSoubor:\r\n\r\n\r\nSoubor:\r\n\r\n\r\n");
  Type("x");
  EXPECT_EQ(StateOf(documents), "()*||||1");
  documents.SwitchTo(1);
  EXPECT_EQ(SwitchTo(4), "()|||/a/one.txt|1");
  EXPECT_EQ(SwitchTo(5), "()||||1");  // two empty texts: no change, so the slot keeps its path
  documents.SwitchTo(1);
  Type("!");
  documents.ClearCurrent();
  EXPECT_EQ(StateOf(documents), "()|||/a/one.txt|1");  // required: written back by the change
  EXPECT_EQ(documents.CurrentPath(), "");
}

TEST_F(DocumentsTest, OnlyDocumentsWithAPathPrimeTheSaveDialog) {
  const auto primed = [this](int tab) {
    documents.SwitchTo(tab);
    const SaveTarget& target = documents.Target();
    return target.Path() + '|' + target.Folder() + '|' + target.Name() + '|' + target.Extension();
  };
  documents.MakeCurrent("/a/one.txt", "one");
  documents.SwitchTo(2);
  documents.Target().Prime("/b/kept.txt");
  EXPECT_EQ(primed(3), "/b/kept.txt|/b/|kept|txt");
  EXPECT_EQ(primed(1), "/a/one.txt|/a/|one|txt");
  EXPECT_THROW(documents.Target().Prime("/b/README"), RuntimeError);
  EXPECT_EQ(primed(1), "/b/README|/b/|one|txt");  // required: half of it
  EXPECT_FALSE(documents.Target().Complete());
}

TEST_F(DocumentsTest, RescueKeepsTheUnsavedDocumentsAndBringsThemBack) {
  documents.MakeCurrent("/a/one.txt", "one");
  Type("!");
  documents.SwitchTo(2);
  documents.MakeCurrent("/a/two.txt", "two");  // saved
  documents.SwitchTo(4);
  Type("never saved");
  const RescueRecord kept = UnsavedDocuments(documents);
  EXPECT_EQ(kept, (RescueRecord{4, {{1, "/a/one.txt", "one!"}, {4, "", "never saved"}}}));

  Desk later;
  EXPECT_TRUE(BringBackDocuments(later.documents, {kept}).empty());
  EXPECT_EQ(later.documents.SelectedTab(), 4);
  EXPECT_EQ(TextsOf(later.documents), "one!|||never saved||");
  EXPECT_EQ(StateOf(later.documents), "()*|||!|2");
  EXPECT_EQ(later.SwitchTo(1), "(/a/one.txt)*|one.txt|/a/one.txt|!|2");
}

TEST_F(DocumentsTest, RescueNeverOverwritesADocumentOfThisRun) {
  documents.MakeCurrent("/given.txt", "given");
  const RescueRecord first{1,
                           {{1, "/a/README", "1"}, {2, "", "2"}, {3, "", "3"}, {4, "", "4"}, {5, "/\u65e5.txt", "5"}}};
  // Four free tabs, five documents. A path outside the code page stays a path.
  EXPECT_EQ(ReadableDocuments(BringBackDocuments(documents, {first})), "Soubor:/\u65e5.txt\r\n5\r\n\r\n");
  EXPECT_EQ(TextsOf(documents), "given|1|2|3|4|");
  documents.SwitchTo(1);
  // A name without a full stop doesn't break the switch.
  EXPECT_EQ(SwitchTo(2), "(/a/README)*|README|/a/README|/given.txt!|4");
}

constexpr std::string_view kPrefix = kDocumentsRescue.prefix;

struct RescueStoreTest : testing::Test {
  TempFolder temp;
  const std::string folder = temp.Path() + "/";

  static RescueStore StoreIn(const std::string& folder) {
    return RescueStore(folder, kPrefix, [](const std::string& path, std::string_view bytes) {
      std::ofstream(path, std::ios::binary) << bytes;
      return 0;
    });
  }
  // Another copy keeps something and dies without a word.
  void LetACopyDie(const std::string& bytes) const {
    const pid_t child = ::fork();
    if (child == 0) {
      RescueStore store = StoreIn(folder);
      store.Keep(bytes);
      ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
  }
};

TEST_F(RescueStoreTest, AnOrdinaryEndLeavesNothing) {
  RescueStore store = StoreIn(folder);
  for (const char* kept : {"one", "two", "", "again"}) {
    EXPECT_EQ(store.Keep(kept), 0);
    EXPECT_EQ(std::filesystem::is_empty(folder), *kept == '\0');
    EXPECT_EQ(Content(store.Path()), *kept == '\0' ? "<missing>" : kept);
    LockFile offer;
    EXPECT_TRUE(FindAbandoned(folder, kPrefix, offer).empty());  // the file of a living copy
  }
  EXPECT_NE(StoreIn("/nonexistent/folder/").Keep("x"), 0);
}

TEST_F(RescueStoreTest, OneCopyAtATimeFindsWhatADeadCopyKept) {
  LetACopyDie("lost");
  RescueStore own = StoreIn(folder);
  own.Keep("mine");
  {
    LockFile first, second;
    const auto found = FindAbandoned(folder, kPrefix, first);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(Content(found[0]), "lost");
    EXPECT_TRUE(FindAbandoned(folder, kPrefix, second).empty());
  }
  LockFile next;
  EXPECT_EQ(FindAbandoned(folder, kPrefix, next).size(), 1u);
}

TEST(RescueFile, ReadsWhatWasWrittenWholeAndOfItsKindAlone) {
  const RescueRecord record{2, {{2, "/x", std::string(300, 'y')}, {5, "", "z"}}};
  const std::string bytes = RescueBytes(kNotesRescue, record);
  EXPECT_EQ(ReadRescue(kNotesRescue, bytes), record);
  EXPECT_FALSE(ReadRescue(kDocumentsRescue, bytes));
  EXPECT_EQ(RescueBytes(kNotesRescue, {2, {}}), "");
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    EXPECT_FALSE(ReadRescue(kNotesRescue, std::string_view(bytes).substr(0, at))) << at;
    std::string damaged = bytes;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x20);
    EXPECT_FALSE(ReadRescue(kNotesRescue, damaged)) << at;
  }
}

}  // namespace
}  // namespace pelmar
