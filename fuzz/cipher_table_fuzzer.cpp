// Reads any bytes as a cipher table. The reader must not crash or take more memory than the file's size, a table must
// be the same after writing and reading it again, and all work of the window on a table must end.
#include <cstdint>
#include <string>

#include "checks.h"
#include "ciphers/rnd_cipher.h"
#include "ciphers/table_file.h"

namespace {

constexpr auto kNoProgress = [](std::size_t) {};

std::size_t SizeOf(const pelmar::CipherTable& table) {
  std::size_t size = table.one_letters.size() + table.zero_letters.size() + table.note.size();
  for (const std::string& code : table.symbol_codes) size += code.size();
  return size;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace pelmar;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const CipherTable table = ReadTable(bytes);
  Require(SizeOf(table) <= size);

  const std::string written = TableBytes(table);
  const CipherTable again = ReadTable(written);
  Require(again.symbol_codes == table.symbol_codes && again.depth == table.depth && again.note == table.note);
  Require(TableBytes(again) == written);

  CodeRows(table);
  LetterRows(table);
  CoefficientsText(table, CountedDigits::kAll);
  CoefficientsText(table, CountedDigits::kFirstEight);
  constexpr std::string_view kText = ".AHOJ SVETE\r\nZ.";
  const Draw draw = [] { return 0.999; };
  const std::string cipher = RndEncipher(kText, table, draw, kNoProgress);
  Require(cipher.size() <= kText.size() * table.depth);
  Require(RndDecipher(cipher, table, kNoProgress).size() <= kText.size());
  RndDecipher(bytes, table, kNoProgress);
  return 0;
}
