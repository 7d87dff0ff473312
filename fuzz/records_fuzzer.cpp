// Reads damaged settings, rescue files of documents and UTF-8. Settings and rescue files are the same after writing and
// reading them again. Texts of a rescue file are never larger than the file. A text is the same after its conversion to
// UTF-8 and back.
#include <cstdint>
#include <string>
#include <string_view>

#include "checks.h"
#include "shell/record_bytes.h"
#include "shell/settings_record.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

void CheckSettings(std::string_view bytes) {
  const std::string written = SettingsBytes(ReadSettings(bytes));
  Require(SettingsBytes(ReadSettings(written)) == written);
}

void CheckEncodings(std::string_view bytes) {
  const std::string utf8 = ToUtf8(bytes);
  Require(IsUtf8(utf8) && FromUtf8(utf8) == bytes);
  Require(FromUtf8(bytes).size() <= bytes.size());
}

}  // namespace
}  // namespace pelmar

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  pelmar::CheckSettings(bytes);
  pelmar::ReadCheckedRescue(pelmar::kDocumentsRescue, bytes);
  // A valid checksum lets the damage reach the fields.
  pelmar::ReadCheckedRescue(pelmar::kDocumentsRescue, pelmar::Sealed(pelmar::kDocumentsRescue.signature, bytes));
  pelmar::CheckEncodings(bytes);
  return 0;
}
