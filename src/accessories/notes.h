// The five notes pages, their file "\notes.dat", and the rescue of unsaved pages. The file is one record from offset 0:
// for each page a 16-bit length and its bytes. The file is not cut, so the rest of a longer old record stays after the
// new record. Pages are numbered from 1; their texts are Windows-1250.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "shell/file_number.h"
#include "shell/rescue_file.h"
#include "text/index.h"

namespace pelmar {

inline constexpr int kNotePages = 5;
inline constexpr RescueKind kNotesRescue{"notes-rescue-", "PELMAR-NOTES-1\n"};
inline constexpr std::size_t kLongestNote = 65535;  // bytes, the limit of a 16-bit length

struct NotesRecord {
  std::array<std::string, kNotePages> pages;

  [[nodiscard]] std::string& Page(int number) { return pages.at(IndexFromOne(number)); }
  [[nodiscard]] const std::string& Page(int number) const { return pages.at(IndexFromOne(number)); }
  bool operator==(const NotesRecord&) const = default;
};

// If the file ends too early, the missing pages are empty.
NotesRecord ReadNotes(std::string_view bytes);
// Throws RuntimeError (EFBIG) for a page longer than kLongestNote.
std::string NotesBytes(const NotesRecord& record);
// The first page that is too long, 0 if all pages fit.
int OverlongPage(const NotesRecord& record);
// The message about a page that is too long. UTF-8.
std::string OverlongMessage(int page, std::size_t size);

// The file in the install folder. A missing file is created empty. Both throw RuntimeError if the file can't be used.
NotesRecord LoadNotes(Platform& platform, FileNumber& file_number);
void StoreNotes(const NotesRecord& record, Platform& platform, FileNumber& file_number);
// Reads the file again, since another copy of the program may have written it after this copy stored `stored`. Returns
// `stored` if the file is missing or empty. Throws like LoadNotes.
NotesRecord LoadNotesAnew(const NotesRecord& stored, Platform& platform, FileNumber& file_number);

struct MergedNotes {
  NotesRecord record;
  int twice = 0;  // the first page that changed in both; 0 for none
};

// Applies the changes from `stored` to `now` to the present content of the file. A page that changed in both is kept
// twice: the text of `now` goes to an empty page or, if no page is empty, below the other text, where it may become too
// long.
MergedNotes MergeNotes(const NotesRecord& now, const NotesRecord& stored, const NotesRecord& file);

// The pages that differ from the stored ones.
RescueRecord NotesToKeep(const NotesRecord& stored, const NotesRecord& now, int page_on_show);

// Puts rescued pages back: a page goes to its own place if the place still holds the old text, otherwise to the next
// empty page. Returns the pages that found no place. An emptied page needs no place.
std::vector<RescuedText> BringBackNotes(NotesRecord& record, const std::vector<RescueRecord>& unsaved);

// The pages as one readable text.
std::string ReadableNotes(const std::vector<RescuedText>& notes);

}  // namespace pelmar
