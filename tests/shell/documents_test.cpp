#include "shell/documents.h"

#include <gtest/gtest.h>

#include "platform/runtime_error.h"
#include "program/session.h"
#include "shell/rescued_documents.h"
#include "support/document_state.h"

namespace pelmar {
namespace {

// The documents of one run of the program.
struct RunOfDocuments {
  TextBuffer text;
  Documents documents{text};

  void Type(const std::string& more) {
    text.SetSelStart(text.Size());
    text.Type(more);
  }
  DocumentState SwitchTo(int tab) {
    documents.SwitchTo(tab);
    return StateOf(documents);
  }
};

struct DocumentsTest : testing::Test, RunOfDocuments {
  // The fields with which the save dialog opens.
  std::string FieldsOfTarget() {
    const SaveTarget& target = documents.Target();
    return target.Path() + ' ' + target.Folder() + ' ' + target.Name() + ' ' + target.Extension();
  }
};

TEST_F(DocumentsTest, AChangeMarksOnlyTheTitle) {
  Type("a");
  EXPECT_EQ(StateOf(documents), (DocumentState{.title = "()*", .unsaved = 1}));
}

TEST_F(DocumentsTest, ASwitchKeepsTextPathAndMarkOfTheLeftTab) {
  documents.MakeCurrent("/a/one.txt", "one");
  Type("!");
  EXPECT_EQ(SwitchTo(3), (DocumentState{.title = "()", .slot_path = "/a/one.txt", .unsaved = 1}));
  EXPECT_EQ(text.Text(), "");
  Type("three");
  // Tab 1 is unsaved by its flag and by the title, but counted once.
  EXPECT_EQ(SwitchTo(1), (DocumentState{"(/a/one.txt)*", "one.txt", "/a/one.txt", "", true, 2}));
  EXPECT_EQ(text.Text(), "one!");
  EXPECT_EQ(text.Caret(), 0u);
  EXPECT_FALSE(text.CanUndo());
}

// required: a switch changes the text, and this change still writes the path of the left tab
TEST_F(DocumentsTest, TheEnteredSlotHoldsTheLeftPathUntilTheNextChange) {
  documents.MakeCurrent("/a/one.txt", "one");
  documents.SwitchTo(2);
  EXPECT_EQ(AllFilesText(documents),
            "Soubor:/a/one.txt\r\none\r\n\r\nSoubor:/a/one.txt\r\n\r\n\r\n"
            "Soubor:\r\n\r\n\r\nSoubor:\r\n\r\n\r\nSoubor:\r\n\r\n\r\n");
  Type("x");
  EXPECT_EQ(StateOf(documents), (DocumentState{.title = "()*", .unsaved = 1}));
}

TEST_F(DocumentsTest, OnlyADocumentWithAPathSetsTheFieldsOfTheSaveDialog) {
  documents.MakeCurrent("/a/one.txt", "one");
  documents.SwitchTo(2);
  documents.Target().SetPath("/b/kept.txt");
  documents.SwitchTo(3);
  EXPECT_EQ(FieldsOfTarget(), "/b/kept.txt /b/ kept txt");
  documents.SwitchTo(1);
  EXPECT_EQ(FieldsOfTarget(), "/a/one.txt /a/ one txt");
}

TEST_F(DocumentsTest, ANameWithoutAnExtensionSetsOnlyPathAndFolderOfTheTarget) {  // required
  documents.Target().SetPath("/a/one.txt");
  EXPECT_THROW(documents.Target().SetPath("/b/README"), RuntimeError);
  EXPECT_EQ(FieldsOfTarget(), "/b/README /b/ one txt");
  EXPECT_FALSE(documents.Target().Complete());
}

TEST_F(DocumentsTest, RescueKeepsTheUnsavedDocumentsAndBringsThemBack) {
  documents.MakeCurrent("/a/one.txt", "one");
  Type("!");
  documents.SwitchTo(2);
  documents.MakeCurrent("/a/two.txt", "two");  // saved
  documents.SwitchTo(4);
  Type("never saved");
  const RescueRecord kept = DocumentsRescue(documents).Unsaved();
  EXPECT_EQ(kept, (RescueRecord{4, {{1, "/a/one.txt", "one!"}, {4, "", "never saved"}}}));

  RunOfDocuments later;
  EXPECT_TRUE(DocumentsRescue(later.documents).BringBack({kept}).empty());
  EXPECT_EQ(later.documents.SelectedTab(), 4);
  EXPECT_EQ(TextsOf(later.documents), "one!|||never saved||");
  EXPECT_EQ(later.documents.Target().Path(), "/a/one.txt");
  EXPECT_EQ(StateOf(later.documents), (DocumentState{.title = "()*", .flagged = true, .unsaved = 2}));
  EXPECT_EQ(later.SwitchTo(1), (DocumentState{"(/a/one.txt)*", "one.txt", "/a/one.txt", "", true, 2}));
}

TEST_F(DocumentsTest, RescueNeverOverwritesADocumentOfThisRun) {
  documents.MakeCurrent("/given.txt", "given");
  const RescueRecord first{1,
                           {{1, "/a/README", "1"}, {2, "", "2"}, {3, "", "3"}, {4, "", "4"}, {5, "/\u65e5.txt", "5"}}};
  // Four free tabs, five documents. A path outside the code page is stored as a URL.
  DocumentsRescue rescue(documents);
  EXPECT_EQ(rescue.Readable(rescue.BringBack({first})), "Soubor:file:///%E6%97%A5.txt\r\n5\r\n\r\n");
  EXPECT_EQ(documents.Title(), "Pelmar VEX (/a/README)*");
  EXPECT_EQ(TextsOf(documents), "given|1|2|3|4|");
  documents.SwitchTo(1);
  // A name without an extension doesn't break the switch.
  EXPECT_EQ(SwitchTo(2), (DocumentState{"(/a/README)*", "README", "/a/README", "/given.txt", true, 4}));
}

}  // namespace
}  // namespace pelmar
