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

std::string NotesPath(Platform& platform) { return JoinPath(platform.InstallFolder(), kFileName); }

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
  for (std::string& page : record.pages) page = reader.String(kCountSize);
  return record;
}

std::string NotesBytes(const NotesRecord& record) {
  if (const int page = OverlongPage(record)) throw RuntimeError(EFBIG, OverlongMessage(page, record.Page(page).size()));
  RecordWriter writer;
  for (const std::string& page : record.pages) writer.String(page, kCountSize);
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
  return ReadNotes(ReadOrMakeOn(file_number, platform, NotesPath(platform), kLongestRecord));
}

void StoreNotes(const NotesRecord& record, Platform& platform, FileNumber& file_number) {
  WriteRecordOn(file_number, platform, NotesPath(platform), NotesBytes(record));
}

NotesRecord LoadNotesAnew(const NotesRecord& stored, Platform& platform, FileNumber& file_number) {
  const std::string bytes = ReadOrMakeOn(file_number, platform, NotesPath(platform), kLongestRecord);
  return bytes.empty() ? stored : ReadNotes(bytes);
}

MergedNotes MergeNotes(const NotesRecord& stored, const NotesRecord& now, const NotesRecord& file) {
  MergedNotes merged{file};
  for (const RescuedText& note : BringBackNotes(merged.record, {NotesToKeep(stored, now, 1)}))
    merged.record.Page(note.place) += "\r\n\r\n" + note.text;
  for (int page = kNotePages; page >= 1; --page) {
    const std::string& text = now.Page(page);
    if (text != stored.Page(page) && text != merged.record.Page(page) && !text.empty()) merged.page_in_conflict = page;
  }
  return merged;
}

RescueRecord NotesToKeep(const NotesRecord& stored, const NotesRecord& now, int page_on_show) {
  static_assert(kRescuePlaces == kNotePages);
  RescueRecord unsaved{page_on_show, {}};
  for (int page = 1; page <= kNotePages; ++page)
    if (now.Page(page) != stored.Page(page)) unsaved.texts.push_back({page, stored.Page(page), now.Page(page)});
  return unsaved;
}

std::vector<RescuedText> BringBackNotes(NotesRecord& record, const std::vector<RescueRecord>& unsaved) {
  std::vector<RescuedText> moved;
  for (const RescueRecord& rescued : unsaved) {
    for (const RescuedText& note : rescued.texts) {
      if (record.Page(note.place) == note.origin) {
        record.Page(note.place) = note.text;
      } else if (!note.text.empty() && record.Page(note.place) != note.text) {
        moved.push_back(note);
      }
    }
  }
  // The empty pages are filled last, so that no page is filled before its own text returns.
  std::erase_if(moved, [&](const RescuedText& note) { return TakeEmptyPage(record, note.text); });
  return moved;
}

std::string ReadableNotes(const std::vector<RescuedText>& notes) {
  std::string text;
  for (const RescuedText& note : notes)
    text += std::string("Poznámka "_w) + std::to_string(note.place) + ":\r\n" + note.text + "\r\n\r\n";
  return text;
}

}  // namespace pelmar
