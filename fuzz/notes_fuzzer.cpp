// Reads damaged notes files and rescue files of notes. The result is never larger than the input, and is the same after
// writing and reading it again.
#include <cstdint>
#include <string_view>

#include "accessories/notes.h"
#include "checks.h"
#include "shell/record_bytes.h"

namespace pelmar {
namespace {

void CheckFile(std::string_view bytes) {
  const NotesRecord record = ReadNotes(bytes);
  std::size_t size = 0;
  for (const std::string& page : record.pages) size += page.size();
  Require(size <= bytes.size());
  Require(ReadNotes(NotesBytes(record)) == record);
}

void CheckRescue(std::string_view bytes) {
  const auto unsaved = ReadCheckedRescue(kNotesRescue, bytes);
  if (!unsaved) return;
  NotesRecord record = ReadNotes(bytes);
  const auto left = BringBackNotes(record, {*unsaved});
  Require(left.size() <= unsaved->texts.size());
}

}  // namespace
}  // namespace pelmar

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  pelmar::CheckFile(bytes);
  pelmar::CheckRescue(bytes);
  // A valid checksum lets the damage reach the fields.
  pelmar::CheckRescue(pelmar::Sealed(pelmar::kNotesRescue.signature, bytes));
  return 0;
}
