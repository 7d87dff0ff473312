#include "ciphers/table_file.h"

#include <cerrno>
#include <utility>

#include "platform/runtime_error.h"
#include "shell/record_bytes.h"

namespace pelmar {
namespace {

constexpr int kFilterIndex = 0;
constexpr std::uint64_t kLargestTable = (kSymbols + 3) * (2 + kLongestField) + 1;

}  // namespace

CipherTable ReadTable(std::string_view bytes) {
  RecordReader reader(bytes);
  const auto text = [&reader] { return std::string(reader.Bytes(reader.Number(2))); };
  CipherTable table;
  for (std::string& code : table.SymbolCodes) code = text();
  table.Depth = static_cast<std::uint8_t>(reader.Number(1));
  table.OneLetters = text();
  table.ZeroLetters = text();
  table.Note = text();
  return table;
}

std::string TableBytes(const CipherTable& table) {
  RecordWriter writer;
  const auto write = [&writer](std::string_view text) {
    text = text.substr(0, kLongestField);
    writer.Number(text.size(), 2);
    writer.Bytes(text);
  };
  for (const std::string& code : table.SymbolCodes) write(code);
  writer.Number(table.Depth, 1);
  write(table.OneLetters);
  write(table.ZeroLetters);
  write(table.Note);
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
