// The five notes pages, their file notes.dat, and the rescue of unsaved pages. The file is one record from offset 0:
// for each page a 16-bit length and the text. A save doesn't shorten the file, so the rest of a longer old record stays
// after the new record. Pages are numbered from 1. Texts are Windows-1250.
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

// If the file ends too early, the incomplete and the missing pages are empty.
NotesRecord ReadNotes(std::string_view bytes);
// Throws RuntimeError (EFBIG) for a page longer than kLongestNote.
std::string NotesBytes(const NotesRecord& record);
// The first page that is too long, 0 if all pages fit.
int OverlongPage(const NotesRecord& record);
// The message about a page that is too long. UTF-8.
std::string OverlongMessage(int page, std::size_t size);

// Read and write the file in the install folder. LoadNotes creates a missing file. Both throw RuntimeError on failure.
NotesRecord LoadNotes(Platform& platform, FileNumber& file_number);
void StoreNotes(const NotesRecord& record, Platform& platform, FileNumber& file_number);
// Reads the file again, since another copy of the program may have written the file. If the file is missing or empty,
// returns `stored`, which this copy read or wrote last. Like LoadNotes, creates a missing file, and throws on failure.
NotesRecord LoadNotesAnew(const NotesRecord& stored, Platform& platform, FileNumber& file_number);

struct MergedNotes {
  NotesRecord record;
  int page_in_conflict = 0;  // the first page of which both texts are kept; 0 for none
};

// Applies the changes between `stored` and `now` to `file`, the present content of the file. If the file has a
// different change of the same page, the page keeps the text of the file. The text of `now`, unless empty, goes to an
// empty page. If no page is empty, this text is appended to the text of the file, and the page may become too long.
MergedNotes MergeNotes(const NotesRecord& stored, const NotesRecord& now, const NotesRecord& file);

// The pages of `now` that differ from `stored`. `page_on_show` is the number of the selected page.
RescueRecord NotesToKeep(const NotesRecord& stored, const NotesRecord& now, int page_on_show);

// Puts unsaved texts back. A text returns to its page if the page still has the text before the change. Otherwise an
// empty page gets the text, unless the text is empty or already on its page. Returns the texts for which no page was
// empty.
std::vector<RescuedText> BringBackNotes(NotesRecord& record, const std::vector<RescueRecord>& unsaved);

// The pages as one readable text.
std::string ReadableNotes(const std::vector<RescuedText>& notes);

}  // namespace pelmar
