#include "ciphers/table_file.h"

#include <cerrno>
#include <utility>

#include "platform/runtime_error.h"
#include "shell/record_bytes.h"

namespace pelmar {
namespace {

constexpr int kFilterIndex = 0;
constexpr std::size_t kCountSize = 2;
constexpr std::uint64_t kLargestTable = (kSymbols + 3) * (kCountSize + kLongestField) + 1;

}  // namespace

CipherTable ReadTable(std::string_view bytes) {
  RecordReader reader(bytes);
  CipherTable table;
  for (std::string& code : table.SymbolCodes) code = reader.String(kCountSize);
  table.Depth = static_cast<std::uint8_t>(reader.Number(1));
  table.OneLetters = reader.String(kCountSize);
  table.ZeroLetters = reader.String(kCountSize);
  table.Note = reader.String(kCountSize);
  return table;
}

std::string TableBytes(const CipherTable& table) {
  RecordWriter writer;
  for (const std::string& code : table.SymbolCodes) writer.String(code, kCountSize);
  writer.Number(table.Depth, 1);
  writer.String(table.OneLetters, kCountSize);
  writer.String(table.ZeroLetters, kCountSize);
  writer.String(table.Note, kCountSize);
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
         platform_.Message(MessageType::kYesNoWarning, "Opravdu uložit Tabulku ? - Soubor již existuje!",
                           "RND Soubor") == Answer::kYes;
}

void TableFiles::Save(const CipherTable& table) {
  path_ = platform_.SaveDialog(kTableFilter, kFilterIndex).value_or(path_);
  if (path_.empty() || !MayWrite()) return;
  try {
    WriteRecordOn(file_number_, platform_, path_, TableBytes(table));
  } catch (const RuntimeError&) {  // required: the command ends in silence
  }
}

}  // namespace pelmar
