#include <gtest/gtest.h>

#include <cerrno>

#include "accessories/checkpoints.h"
#include "accessories/notes.h"
#include "accessories/notes_place.h"
#include "platform/runtime_error.h"
#include "support/scripted_platform.h"

namespace pelmar {
namespace {

constexpr char kPath[] = "/install/notes.dat";
const NotesRecord kStored{{"a\r\n", "", std::string(258, 'x'), "\xE8\xFF", std::string("\0z", 2)}};

// The bytes of the first two pages of kStored, and the length of the third page, 258.
const std::string kBeginning("\3\0a\r\n\0\0\2\1", 9);

TEST(NotesFile, HasALengthOf16BitsBeforeEachPage) {
  EXPECT_EQ(NotesBytes(kStored), kBeginning + kStored.Page(3) + std::string("\2\0\xE8\xFF\2\0\0z", 8));
  EXPECT_EQ(ReadNotes(NotesBytes(kStored)), kStored);
}

TEST(NotesFile, ReadsATruncatedPageAsEmpty) { EXPECT_EQ(ReadNotes(kBeginning + "xx"), (NotesRecord{{"a\r\n"}})); }

TEST(NotesFile, HoldsAtMost65535BytesOfAPage) {
  NotesRecord record;
  record.Page(4) = std::string(65535, 'x');
  EXPECT_EQ(ReadNotes(NotesBytes(record)), record);
  EXPECT_EQ(OverlongPage(record), 0);
  record.Page(4) += 'x';
  EXPECT_EQ(OverlongPage(record), 4);
  EXPECT_THROW(static_cast<void>(NotesBytes(record)), RuntimeError);
  EXPECT_EQ(OverlongMessage(4, 65536), "Poznámka 4 má 65536 znaků. Uložit jich lze nejvýše 65535, zkraťte ji prosím.");
}

struct NotesOnDisk : testing::Test {
  ScriptedPlatform platform;
  FileNumber file_number;

  [[nodiscard]] NotesRecord Load() { return LoadNotes(platform, file_number); }
};

TEST_F(NotesOnDisk, AMissingFileIsCreatedEmpty) {
  EXPECT_EQ(Load(), NotesRecord{});
  EXPECT_EQ(platform.files.at(kPath), "");
}

TEST_F(NotesOnDisk, TheTailOfALongerRecordStaysAndIsNotRead) {
  StoreNotes(kStored, platform, file_number);
  StoreNotes({{"b"}}, platform, file_number);
  EXPECT_EQ(platform.files[kPath], NotesBytes({{"b"}}) + NotesBytes(kStored).substr(11));
  EXPECT_EQ(Load(), (NotesRecord{{"b"}}));
}

TEST_F(NotesOnDisk, ADisappearedFileDoesNotEmptyThePages) {
  EXPECT_EQ(LoadNotesAnew(kStored, platform, file_number), kStored);
  StoreNotes({}, platform, file_number);
  EXPECT_EQ(LoadNotesAnew(kStored, platform, file_number), NotesRecord{});
}

TEST_F(NotesOnDisk, AnUnreadableFileIsNotOverwritten) {
  platform.files[kPath] = "kept";
  platform.read_errors[kPath] = EACCES;
  EXPECT_THROW(static_cast<void>(Load()), RuntimeError);
  EXPECT_THROW(StoreNotes({}, platform, file_number), RuntimeError);
  EXPECT_EQ(platform.files[kPath], "kept");
}

// Merges this copy's pages with the file that another copy has written. Both copies began with the same pages. Returns
// the merged pages, and the number of a page in conflict or 0.
std::pair<NotesRecord, int> Merged(const NotesRecord& own, const NotesRecord& file) {
  const MergedNotes merged = MergeNotes({{"one", "two", "", "four", "five"}}, own, file);
  return {merged.record, merged.page_in_conflict};
}

TEST(MergeNotes, APageThatOneSideChangedComesFromThatSide) {
  EXPECT_EQ(Merged({{"one", "two", "", "four", "five"}}, {{"1", "", "3"}}), std::pair(NotesRecord{{"1", "", "3"}}, 0));
  const NotesRecord changed{{"ONE", "TWO", "", "FOUR", ""}};
  EXPECT_EQ(Merged(changed, {{"one", "two", "", "four", "five"}}), std::pair(changed, 0));
}

TEST(MergeNotes, BothTextsOfAPageThatBothSidesChangedAreKept) {
  const NotesRecord own{{"ONE", "TWO", "", "FOUR", ""}};
  // The own page 2 goes to the empty page. Page 4 is the same on both sides. Page 5 keeps the text of the file.
  EXPECT_EQ(Merged(own, {{"one", "2", "", "FOUR", "5"}}), std::pair(NotesRecord{{"ONE", "2", "TWO", "FOUR", "5"}}, 2));
  // Without an empty page, both texts are in one page.
  EXPECT_EQ(Merged(own, {{"1", "two", "3", "four", "5"}}),
            std::pair(NotesRecord{{"1\r\n\r\nONE", "TWO", "3", "FOUR", "5"}}, 1));
}

TEST(NotesRescue, BringsAPageBackToItsPlaceOrToAnEmptyOneAndReturnsTheRest) {
  NotesRecord record{{"one", "two", "", "four", "five"}};
  const std::vector<RescueRecord> unsaved = {
      // Page 5 has changed since, and its unsaved text is empty.
      {1, {{1, "one", "ONE"}, {3, "", "THREE"}, {5, "older", ""}}},
      {2, {{1, "one", "another one"}, {2, "two", ""}}},
      {1, {{4, "older", "no place"}}},
  };
  const std::vector<RescuedText> left = BringBackNotes(record, unsaved);
  EXPECT_EQ(record, (NotesRecord{{"ONE", "another one", "THREE", "four", "five"}}));
  EXPECT_EQ(left, (std::vector<RescuedText>{{4, "older", "no place"}}));
  EXPECT_EQ(ReadableNotes(left), "Pozn\xE1mka 4:\r\nno place\r\n\r\n");
}

struct CheckpointTest : testing::Test {
  ScriptedPlatform platform;
  TextBuffer document, note;
};

TEST_F(CheckpointTest, ANoKeepsTheDocument) {
  document.SetText("text");
  note.SetText("note");
  platform.answers = {Answer::kNo};
  RestoreCheckpoint(note, document, platform);
  EXPECT_EQ(document.Text(), "text");
  EXPECT_EQ(platform.calls.back(), "message 52 \"Opravdu vše vrátit ?\" \"Checkpoint\"");
}

TEST_F(CheckpointTest, AnEmptyNoteRestoresNothingAndAsksNothing) {
  document.SetText("text");
  RestoreCheckpoint(note, document, platform);
  EXPECT_EQ(document.Text(), "text");
}

TEST_F(CheckpointTest, ATextTooLongForANoteIsRefused) {
  const std::string longest(65535, 'x');
  for (const std::string& text : {longest, longest + 'x'}) {
    document.SetText(text);
    platform.answers = {Answer::kOk};
    SaveCheckpoint(document, note, platform);
    EXPECT_EQ(note.Text(), longest);
  }
  EXPECT_EQ(platform.calls.back(),
            "message 0 \"Text má 65536 znaků, do poznámky se jich vejde nejvýše 65535. Checkpoint nebyl uložen.\" "
            "\"Checkpoint\"");
}

using enum WindowMode;
constexpr int kWidth = 19200, kHeight = 15360;

// The snap distance is 240, the smallest width of the notes 2700.
NotesSurroundings Around(TwipsRect notes, StartMode mode = StartMode::kEditor, bool docked = false,
                         WindowMode main_state = kNormal, int main_width = 12000) {
  return {notes, {1500, 600, main_width, 9000}, main_state, mode, docked, 240, {0, 0, kWidth, kHeight}, 2700};
}

TEST(PlaceNotes, SnapsOrDocksOnEitherScreen) {
  constexpr StartMode kEditor = StartMode::kEditor, kNotes = StartMode::kNotes;
  const TwipsRect edge{100, 300, 6000, 4000};
  const std::tuple<const char*, NotesSurroundings, TwipsRect> kCases[] = {
      {"right and bottom", Around({13000, 11200, 6000, 4000}, kEditor, false, kMaximised), {13200, 11360, 6000, 4000}},
      {"docked", Around(edge, kEditor, true), {13500, 600, 5700, 9000}},
      {"docked beside a minimised one", Around(edge, kEditor, true, kMinimised), {0, 300, 6000, 4000}},
      {"docked beside a maximised one", Around(edge, kEditor, true, kMaximised), {16500, 0, 2700, kHeight}},
      {"in the corner", Around(edge, kNotes, true), {13200, 11360, 6000, 4000}},
      {"docked, no room", Around(edge, kEditor, true, kNormal, kWidth - 1500), {kWidth, 600, 6000, 9000}},
      {"docked, little room", Around(edge, kEditor, true, kNormal, kWidth - 1800), {kWidth - 300, 600, 2700, 9000}},
  };
  for (const auto& [what, around, expected] : kCases) EXPECT_EQ(PlaceNotes(around), expected) << what;
}

}  // namespace
}  // namespace pelmar
