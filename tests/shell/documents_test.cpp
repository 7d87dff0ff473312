#include "shell/documents.h"

#include <gtest/gtest.h>

#include "platform/runtime_error.h"
#include "program/session.h"
#include "shell/rescue_file.h"
#include "shell/rescued_documents.h"
#include "support/document_state.h"

namespace pelmar {
namespace {

struct DocumentsTest : testing::Test {
  TextBuffer text;
  Documents documents{text};

  void Type(const std::string& more) {
    text.SetSelStart(text.Size());
    text.Type(more);
  }
};

TEST_F(DocumentsTest, AChangeMarksTheTitleAndASwitchKeepsTextPathAndMark) {
  EXPECT_EQ(StateOf(documents), "()||||0");
  Type("a");
  EXPECT_EQ(StateOf(documents), "()*||||1");  // the mark of the current tab lives in the title alone
  EXPECT_EQ(documents.TextOf(1), "a");
  documents.MakeCurrent("/a/one.txt", "one");
  EXPECT_EQ(StateOf(documents), "(/a/one.txt)|one.txt|/a/one.txt|/a/one.txt|0");
  Type("!");
  documents.SwitchTo(3);
  EXPECT_EQ(text.Text(), "");
  EXPECT_TRUE(documents.Slot(1).Modified);
  Type("three");
  EXPECT_EQ(StateOf(documents), "()*||||2");
  documents.SwitchTo(1);
  EXPECT_EQ(text.Text(), "one!");
  EXPECT_EQ(text.SelStart(), 0u);
  EXPECT_FALSE(text.CanUndo());
  // Unsaved by its flag and by the title, but counted once.
  EXPECT_EQ(StateOf(documents), "(/a/one.txt)*|one.txt|/a/one.txt|!|2");
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
  documents.SwitchTo(4);
  EXPECT_EQ(StateOf(documents), "()|||/a/one.txt|1");
  documents.SwitchTo(5);  // two empty texts: no change, so the slot keeps its path
  EXPECT_EQ(StateOf(documents), "()||||1");
}

TEST_F(DocumentsTest, OnlyDocumentsWithAPathPrimeTheSaveDialog) {
  const auto primed = [this] {
    const SaveTarget& target = documents.Target();
    return target.Path() + '|' + target.Folder() + '|' + target.Name() + '|' + target.Extension();
  };
  documents.MakeCurrent("/a/one.txt", "one");
  documents.SwitchTo(2);
  documents.Target().Prime("/b/kept.txt");
  documents.SwitchTo(3);
  EXPECT_EQ(primed(), "/b/kept.txt|/b/|kept|txt");
  documents.SwitchTo(1);
  EXPECT_EQ(primed(), "/a/one.txt|/a/|one|txt");
  EXPECT_THROW(documents.Target().Prime("/b/README"), RuntimeError);  // required: half of it
  EXPECT_EQ(documents.Target().Folder(), "/b/");
  EXPECT_EQ(documents.Target().Name(), "one");
  EXPECT_FALSE(documents.Target().Complete());
}

TEST_F(DocumentsTest, ClearCurrentLeavesTheOldPathInTheSlot) {
  documents.MakeCurrent("/a/one.txt", "one");
  Type("!");
  documents.ClearCurrent();
  EXPECT_EQ(StateOf(documents), "()|||/a/one.txt|0");  // required: written back by the change
  EXPECT_EQ(documents.CurrentPath(), "");
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

  TextBuffer box;
  Documents later(box);
  EXPECT_TRUE(BringBackDocuments(later, {kept}).empty());
  EXPECT_EQ(later.SelectedTab(), 4);
  EXPECT_EQ(box.Text(), "never saved");
  EXPECT_EQ(StateOf(later), "()*|||!|2");
  later.SwitchTo(1);
  EXPECT_EQ(StateOf(later), "(/a/one.txt)*|one.txt|/a/one.txt|!|2");
}

TEST_F(DocumentsTest, RescueNeverOverwritesADocumentOfThisRun) {
  documents.MakeCurrent("/given.txt", "given");
  const RescueRecord first{1,
                           {{1, "/a/README", "1"}, {2, "", "2"}, {3, "", "3"}, {4, "", "4"}, {5, "/\u65e5.txt", "5"}}};
  // Four free tabs, five documents. A path outside the code page stays a path.
  EXPECT_EQ(ReadableDocuments(BringBackDocuments(documents, {first})), "Soubor:/\u65e5.txt\r\n5\r\n\r\n");
  EXPECT_EQ(documents.TextOf(1), "given");
  EXPECT_EQ(documents.TextOf(2), "1");
  documents.SwitchTo(1);
  documents.SwitchTo(2);  // a name without a full stop doesn't break the switch
  EXPECT_EQ(documents.CurrentPath(), "/a/README");
}

}  // namespace
}  // namespace pelmar
