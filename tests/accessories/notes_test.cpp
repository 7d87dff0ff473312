#include "accessories/notes.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "accessories/checkpoints.h"
#include "platform/runtime_error.h"
#include "support/scripted_platform.h"

namespace pelmar {
namespace {

constexpr char kPath[] = "/install/notes.dat";

std::string Bytes(std::initializer_list<int> codes) {
  std::string bytes;
  for (const int code : codes) bytes += static_cast<char>(code);
  return bytes;
}

const NotesRecord kNotes{{"a\r\n", "", std::string(258, 'x'), "\xE8\xFF", std::string("\0z", 2)}};
const std::string kNotesBytes =
    Bytes({3, 0, 'a', 13, 10, 0, 0, 2, 1}) + std::string(258, 'x') + Bytes({2, 0, 0xE8, 0xFF, 2, 0, 0, 'z'});

TEST(NotesFile, IsTheRecordToTheByteAndEmptyFromADamageOn) {
  EXPECT_EQ(NotesBytes(kNotes), kNotesBytes);
  EXPECT_EQ(NotesBytes({}), std::string(10, '\0'));
  const std::pair<std::string, NotesRecord> cases[] = {
      {Bytes({5}), {}},                                           // half a count
      {Bytes({1, 0, 'a', 0xFF, 0xFF, 'b', 1, 0, 'c'}), {{"a"}}},  // what stands behind the damage can't be trusted
      {Bytes({1, 0, 'a', 2, 0, 'b', 'c', 1}), {{"a", "bc"}}},
      {kNotesBytes + "an older, longer record's tail", kNotes},
  };
  for (const auto& [bytes, record] : cases) EXPECT_EQ(ReadNotes(bytes), record) << bytes.size();
  NotesRecord record;
  record.Page(4) = std::string(kLongestNote, 'x');
  EXPECT_EQ(ReadNotes(NotesBytes(record)), record);
  EXPECT_EQ(OverlongPage(record), 0);
  record.Page(4) += 'x';
  EXPECT_EQ(OverlongPage(record), 4);
  EXPECT_THROW(NotesBytes(record), RuntimeError);
}

struct NotesOnDisk : testing::Test {
  ScriptedPlatform platform;
  FileNumber file_number;
};

TEST_F(NotesOnDisk, AMissingFileIsMadeEmptyAndTheTailOfALongerRecordStays) {
  EXPECT_EQ(LoadNotes(platform, file_number), NotesRecord{});
  EXPECT_EQ(platform.files.at(kPath), "");
  StoreNotes({}, platform, file_number);
  EXPECT_EQ(platform.files.at(kPath), std::string(10, '\0'));
  platform.files[kPath] = kNotesBytes;
  StoreNotes({{"b"}}, platform, file_number);
  EXPECT_EQ(platform.files[kPath], Bytes({1, 0, 'b', 0, 0, 0, 0, 0, 0, 0, 0}) + kNotesBytes.substr(11));
  EXPECT_EQ(LoadNotes(platform, file_number), (NotesRecord{{"b"}}));
}

TEST_F(NotesOnDisk, WhatCantBeReadIsNotWrittenOver) {
  platform.files[kPath] = kNotesBytes;
  platform.read_errors[kPath] = EACCES;
  EXPECT_THROW(LoadNotes(platform, file_number), RuntimeError);
  EXPECT_THROW(StoreNotes({}, platform, file_number), RuntimeError);
  EXPECT_EQ(platform.files[kPath], kNotesBytes);
  platform.read_errors.clear();
  platform.write_errors[kPath] = EROFS;
  EXPECT_THROW(StoreNotes({}, platform, file_number), RuntimeError);
  EXPECT_FALSE(file_number.IsOpen());
  platform.files.clear();
  EXPECT_THROW(LoadNotes(platform, file_number), RuntimeError);
  file_number.Open();  // an operation that was abandoned
  EXPECT_THROW(LoadNotes(platform, file_number), RuntimeError);
}

TEST(NotesRescue, HoldsThePagesThatDifferFromTheFile) {
  NotesRecord now = kNotes;
  now.Page(1) = "new";
  now.Page(3).clear();
  EXPECT_EQ(NotesToKeep(kNotes, now, 3), (RescueRecord{3, {{1, "a\r\n", "new"}, {3, std::string(258, 'x'), ""}}}));
}

TEST(NotesRescue, EachPageComesBackToItsPlaceOrToAnEmptyOne) {
  NotesRecord record{{"one", "two", "", "four", "five"}};
  const std::vector<RescueRecord> unsaved = {
      {1, {{1, "one", "ONE"}, {3, "", "THREE"}, {5, "older", ""}}},  // an emptied page gives way to what is there now
      {2, {{1, "one", "another one"}, {2, "two", ""}}},
      {1, {{4, "older", "no place"}}},
  };
  const std::vector<RescuedText> left = BringBackNotes(record, unsaved);
  EXPECT_EQ(record, (NotesRecord{{"ONE", "another one", "THREE", "four", "five"}}));
  EXPECT_EQ(left, (std::vector<RescuedText>{{4, "older", "no place"}}));
  EXPECT_EQ(ReadableNotes(left), "Pozn\xE1mka 4:\r\nno place\r\n\r\n");
}

TEST(Checkpoint, TakesTheTextOverTheNoteAndAsksBeforeItGivesItBack) {
  ScriptedPlatform platform;
  TextBuffer document, note;
  document.SetText("text\r\n\xFF");
  RestoreCheckpoint(note, document, platform);  // an empty note asks nothing
  EXPECT_EQ(document.Size(), 7u);
  note.SetText("old note");
  SaveCheckpoint(document, note, platform);
  EXPECT_EQ(note.Text(), document.Text());
  document.SetText("spoilt");
  platform.answers = {Answer::kNo, Answer::kYes};
  RestoreCheckpoint(note, document, platform);
  EXPECT_EQ(document.Text(), "spoilt");
  RestoreCheckpoint(note, document, platform);
  EXPECT_EQ(document.Text(), "text\r\n\xFF");
  const std::string question = "message 52 \"Opravdu vše vrátit ?\" \"Checkpoint\"";
  EXPECT_EQ(platform.TakeCalls(), (std::vector<std::string>{question, question}));
  document.SetText(std::string(kLongestNote + 1, 'x'));  // no note holds it
  platform.answers = {Answer::kOk};
  SaveCheckpoint(document, note, platform);
  EXPECT_EQ(note.Size(), 7u);
  EXPECT_EQ(platform.calls.size(), 1u);
}

}  // namespace
}  // namespace pelmar
