#include "ciphers/table_file.h"

#include <cerrno>
#include <utility>

#include "platform/runtime_error.h"
#include "shell/record_bytes.h"

namespace pelmar {
namespace {

constexpr int kFilterIndex = 0;
constexpr std::size_t kCountSize = 2;
constexpr std::size_t kLongestField = 65535;  // bytes, the limit of a 16-bit count
constexpr std::uint64_t kLargestTable = (kSymbols + 3) * (kCountSize + kLongestField) + 1;

}  // namespace

CipherTable ReadTable(std::string_view bytes) {
  RecordReader reader(bytes);
  CipherTable table;
  for (std::string& code : table.symbol_codes) code = reader.String(kCountSize);
  table.depth = static_cast<std::uint8_t>(reader.Number(1));
  table.one_letters = reader.String(kCountSize);
  table.zero_letters = reader.String(kCountSize);
  table.note = reader.String(kCountSize);
  return table;
}

std::string TableBytes(const CipherTable& table) {
  RecordWriter writer;
  for (const std::string& code : table.symbol_codes) writer.String(code, kCountSize);
  writer.Number(table.depth, 1);
  writer.String(table.one_letters, kCountSize);
  writer.String(table.zero_letters, kCountSize);
  writer.String(table.note, kCountSize);
  return std::move(writer).Take();
}

TableFiles::TableFiles(Platform& platform, FileNumber& file_number) : platform_(platform), file_number_(file_number) {}

void TableFiles::Load(CipherTable& table) {
  path_ = platform_.OpenDialog(kTableFilter, kFilterIndex).value_or(path_);
  if (path_.empty()) throw RuntimeError(ENOENT, "Soubor nelze otevřít");
  table = ReadTable(ReadOrMakeOn(file_number_, platform_, path_, kLargestTable));
}

bool TableFiles::MayWrite() {
  return !FileExists(file_number_, platform_, path_) ||
         platform_.Confirmed("Opravdu uložit Tabulku ? - Soubor již existuje!", "RND Soubor");
}

void TableFiles::Save(const CipherTable& table) {
  path_ = platform_.SaveDialog(kTableFilter, kFilterIndex).value_or(path_);
  if (path_.empty() || !MayWrite()) return;
  try {
    WriteRecordOn(file_number_, platform_, path_, TableBytes(table));
  } catch (const RuntimeError&) {  // required: errors are not reported
  }
}

}  // namespace pelmar
