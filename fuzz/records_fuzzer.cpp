// Reads damaged settings, rescue files of documents and UTF-8 files. Settings and rescue files are the same after
// writing and reading them again. Texts of a rescue file are never larger than the file. Cutting a file into pieces
// doesn't change its conversion.
#include <cstdint>
#include <string>
#include <string_view>

#include "checks.h"
#include "files/encodings.h"
#include "shell/record_bytes.h"
#include "shell/settings_record.h"

namespace pelmar {
namespace {

void CheckSettings(std::string_view bytes) {
  const std::string written = SettingsBytes(ReadSettings(bytes));
  Require(SettingsBytes(ReadSettings(written)) == written);
}

std::string Rewritten(FileRewriter& rewriter, std::string_view bytes, std::size_t cut) {
  std::string out(rewriter.Rewrite(bytes.substr(0, cut)));
  out += rewriter.Rewrite(bytes.substr(cut));
  out += rewriter.Finish();
  Require(rewriter.ResultLength() <= out.size());
  return out.substr(0, rewriter.ResultLength());
}

void CheckEncodings(std::string_view bytes, std::size_t cut) {
  PageToUtf8 whole(false), pieces(false);
  const std::string utf8 = Rewritten(whole, bytes, 0);
  Require(utf8 == Rewritten(pieces, bytes, cut));
  Utf8ToPage back, damaged, damaged_pieces;
  Require(Rewritten(back, utf8, cut) == bytes);
  Require(Rewritten(damaged, bytes, 0) == Rewritten(damaged_pieces, bytes, cut));
}

}  // namespace
}  // namespace pelmar

// The first byte is the position where the rest is cut.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  pelmar::CheckSettings(bytes);
  pelmar::ReadCheckedRescue(pelmar::kDocumentsRescue, bytes);
  // A valid checksum lets the damage reach the fields.
  pelmar::ReadCheckedRescue(pelmar::kDocumentsRescue, pelmar::Sealed(pelmar::kDocumentsRescue.signature, bytes));
  pelmar::CheckEncodings(bytes, data[0] % (bytes.size() + 1));
  return 0;
}
