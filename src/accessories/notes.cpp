#include "accessories/notes.h"

#include <algorithm>
#include <cerrno>

#include "platform/paths.h"
#include "platform/runtime_error.h"
#include "shell/record_bytes.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr std::string_view kFileName = "notes.dat";
constexpr std::size_t kCountSize = 2;
constexpr std::uint64_t kLongestRecord = kNotePages * (kCountSize + kLongestNote);

constexpr std::size_t kRescueNumber = 8;

std::string NotesPath(Platform& platform) { return JoinPath(platform.InstallFolder(), kFileName); }

void Check(int error, const std::string& failure) {
  if (error != 0) throw RuntimeError(error, failure);
}

int TakePage(RecordReader& reader) {
  const std::uint64_t page = reader.Number(kRescueNumber);
  return page <= kNotePages ? static_cast<int>(page) : 0;
}

bool TakeEmptyPage(NotesRecord& record, const std::string& text) {
  const auto empty = std::ranges::find_if(record.pages, &std::string::empty);
  if (empty == record.pages.end()) return false;
  *empty = text;
  return true;
}

}  // namespace

NotesRecord ReadNotes(std::string_view bytes) {
  RecordReader reader(bytes);
  NotesRecord record;
  for (std::string& page : record.pages) page = reader.Bytes(reader.Number(kCountSize));
  return record;
}

std::string NotesBytes(const NotesRecord& record) {
  if (const int page = OverlongPage(record)) throw RuntimeError(EFBIG, OverlongMessage(page, record.Page(page).size()));
  RecordWriter writer;
  for (const std::string& page : record.pages) {
    writer.Number(page.size(), kCountSize);
    writer.Bytes(page);
  }
  return std::move(writer).Take();
}

int OverlongPage(const NotesRecord& record) {
  const auto found = std::ranges::find_if(record.pages, [](const auto& page) { return page.size() > kLongestNote; });
  return found == record.pages.end() ? 0 : static_cast<int>(found - record.pages.begin()) + 1;
}

std::string OverlongMessage(int page, std::size_t size) {
  return "Poznámka " + std::to_string(page) + " má " + std::to_string(size) + " znaků. Uložit jich lze nejvýše " +
         std::to_string(kLongestNote) + ", zkraťte ji prosím.";
}

NotesRecord LoadNotes(Platform& platform, FileNumber& file_number) {
  const std::string path = NotesPath(platform);
  const OpenNumber number(file_number);
  const FileBytes file = platform.ReadFile(path, kLongestRecord);
  Check(file.error == ENOENT ? platform.WriteFile(path, {}) : file.error, "Soubor " + path + " nelze otevřít");
  return ReadNotes(file.bytes);
}

void StoreNotes(const NotesRecord& record, Platform& platform, FileNumber& file_number) {
  const std::string path = NotesPath(platform);
  const std::string failure = "Soubor " + path + " nelze zapsat";
  const std::string bytes = NotesBytes(record);
  const OpenNumber number(file_number);
  const FileBytes old = platform.ReadFile(path, std::nullopt);
  if (old.error != ENOENT) Check(old.error, failure);
  Check(platform.WriteFile(path, OverOldTail(bytes, old.bytes)), failure);
}

UnsavedNotes NotesToKeep(const NotesRecord& stored, const NotesRecord& now, int page_on_show) {
  UnsavedNotes unsaved{page_on_show, {}};
  for (int page = 1; page <= kNotePages; ++page)
    if (now.Page(page) != stored.Page(page)) unsaved.notes.push_back({page, stored.Page(page), now.Page(page)});
  return unsaved;
}

std::string NotesRescueBytes(const UnsavedNotes& unsaved) {
  RecordWriter writer;
  writer.Number(static_cast<std::uint64_t>(unsaved.page_on_show), kRescueNumber);
  for (const UnsavedNote& note : unsaved.notes) {
    writer.Number(static_cast<std::uint64_t>(note.page), kRescueNumber);
    for (const std::string* text : {&note.before, &note.text}) {
      writer.Number(text->size(), kRescueNumber);
      writer.Bytes(*text);
    }
  }
  return Sealed(kNotesRescueSignature, std::move(writer).Take());
}

std::optional<UnsavedNotes> ReadNotesRescue(std::string_view bytes) {
  const std::optional<std::string_view> body = SealedBody(kNotesRescueSignature, bytes);
  if (!body) return std::nullopt;
  RecordReader reader(*body);
  UnsavedNotes unsaved;
  unsaved.page_on_show = TakePage(reader);
  if (unsaved.page_on_show == 0) return std::nullopt;
  while (!reader.AtEnd()) {
    UnsavedNote note;
    note.page = TakePage(reader);
    note.before = reader.Bytes(reader.Number(kRescueNumber));
    note.text = reader.Bytes(reader.Number(kRescueNumber));
    if (reader.Failed() || note.page == 0) return std::nullopt;
    unsaved.notes.push_back(std::move(note));
  }
  return unsaved;
}

void DropKnownNotes(UnsavedNotes& unsaved, const NotesRecord& record) {
  std::erase_if(unsaved.notes, [&](const UnsavedNote& note) { return record.Page(note.page) == note.text; });
}

std::vector<UnsavedNote> BringBackNotes(NotesRecord& record, const std::vector<UnsavedNotes>& unsaved) {
  std::vector<UnsavedNote> moved;
  for (const UnsavedNotes& of_one : unsaved) {
    for (const UnsavedNote& note : of_one.notes) {
      if (record.Page(note.page) == note.before) {
        record.Page(note.page) = note.text;
      } else if (!note.text.empty()) {
        moved.push_back(note);
      }
    }
  }
  // Empty pages are given away only when every page that can is back in its own place.
  std::erase_if(moved, [&](const UnsavedNote& note) { return TakeEmptyPage(record, note.text); });
  return moved;
}

std::string ReadableNotes(const std::vector<UnsavedNote>& notes) {
  std::string text;
  for (const UnsavedNote& note : notes)
    text += std::string("Poznámka "_w) + std::to_string(note.page) + ":\r\n" + note.text + "\r\n\r\n";
  return text;
}

}  // namespace pelmar
