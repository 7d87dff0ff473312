// The five pages of the notes, their file "\notes.dat", and what is kept of them while they aren't stored. The file is
// one record from offset 0 (a 16-bit count and that many bytes for each page); it isn't cut, so the tail of a longer
// old record stays behind the new one. Pages are numbered from 1; their texts are Windows-1250.
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
inline constexpr std::size_t kLongestNote = 65535;  // bytes: what the count of a page can say

struct NotesRecord {
  std::array<std::string, kNotePages> pages;

  [[nodiscard]] std::string& Page(int number) { return pages.at(IndexFromOne(number)); }
  [[nodiscard]] const std::string& Page(int number) const { return pages.at(IndexFromOne(number)); }
  bool operator==(const NotesRecord&) const = default;
};

// A file that ends too early reads as empty pages from there on.
NotesRecord ReadNotes(std::string_view bytes);
// Throws RuntimeError (EFBIG) for a page longer than kLongestNote.
std::string NotesBytes(const NotesRecord& record);
// The first page that is too long, 0 where all fit.
int OverlongPage(const NotesRecord& record);
// What a person is told of such a page.
std::string OverlongMessage(int page, std::size_t size);

// The file in the install folder. A missing one is created empty. Both throw RuntimeError where the file can't be used.
NotesRecord LoadNotes(Platform& platform, FileNumber& file_number);
void StoreNotes(const NotesRecord& record, Platform& platform, FileNumber& file_number);

// The pages that differ from what is stored.
RescueRecord NotesToKeep(const NotesRecord& stored, const NotesRecord& now, int page_on_show);

// Brings pages back: each to its own place where that still holds what it held before, else to the next empty page.
// Those that found no place are returned; an emptied page needs none.
std::vector<RescuedText> BringBackNotes(NotesRecord& record, const std::vector<RescueRecord>& unsaved);

// The pages as a text that a person reads.
std::string ReadableNotes(const std::vector<RescuedText>& notes);

}  // namespace pelmar
