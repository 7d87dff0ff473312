// The settings, the documents' rescue file and UTF-8 files, damaged in every way: what is read is never more than what
// was there, what was read is written so that it reads the same, and where a file is cut into pieces makes no odds.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "files/encodings.h"
#include "shell/record_bytes.h"
#include "shell/rescue_file.h"
#include "shell/settings_record.h"

namespace pelmar {
namespace {

void Expect(bool holds) {
  if (!holds) std::abort();
}

void CheckSettings(std::string_view bytes) {
  const std::string written = SettingsBytes(ReadSettings(bytes));
  Expect(SettingsBytes(ReadSettings(written)) == written);
}

void CheckRescue(std::string_view bytes) {
  const auto record = ReadRescue(kDocumentsRescue, bytes);
  if (!record) return;
  std::size_t size = 0;
  for (const RescuedText& text : record->texts) size += text.origin.size() + text.text.size();
  Expect(size <= bytes.size());
  Expect(record->texts.empty() || RescueBytes(kDocumentsRescue, *record) == bytes);
}

std::string Rewritten(FileRewriter& rewriter, std::string_view bytes, std::size_t cut) {
  std::string out(rewriter.Rewrite(bytes.substr(0, cut)));
  out += rewriter.Rewrite(bytes.substr(cut));
  out += rewriter.Finish();
  Expect(rewriter.Kept() <= out.size());
  return out.substr(0, rewriter.Kept());
}

void CheckEncodings(std::string_view bytes, std::size_t cut) {
  PageToUtf8 whole(false), pieces(false);
  const std::string utf8 = Rewritten(whole, bytes, 0);
  Expect(utf8 == Rewritten(pieces, bytes, cut));
  Utf8ToPage back, damaged, damaged_pieces;
  Expect(Rewritten(back, utf8, cut) == bytes);
  Expect(Rewritten(damaged, bytes, 0) == Rewritten(damaged_pieces, bytes, cut));
}

}  // namespace
}  // namespace pelmar

// The first byte says where the rest is cut.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  pelmar::CheckSettings(bytes);
  pelmar::CheckRescue(bytes);
  // Past the checksum, which keeps most damage from the fields behind it.
  pelmar::CheckRescue(pelmar::Sealed(pelmar::kDocumentsRescue.signature, bytes));
  pelmar::CheckEncodings(bytes, data[0] % (bytes.size() + 1));
  return 0;
}
