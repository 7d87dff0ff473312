// The file of a cipher table (".pvt") and the two commands that read and write it. The record has no signature: any
// file reads as a table, a short one as zero and empty from its end on. Its size bounds what reading allocates.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "ciphers/cipher_table.h"
#include "platform/platform.h"
#include "shell/file_number.h"

namespace pelmar {

inline constexpr std::string_view kTableFilter = "Pelmar VEX Šifrovací tabulka (*.pvt)|*.pvt";

// The longest text that fits into a field of the file.
inline constexpr std::size_t kLongestField = 65535;

CipherTable ReadTable(std::string_view bytes);
// Fields are cut where they are longer than kLongestField.
std::string TableBytes(const CipherTable& table);

// The open and the save dialog of the cipher, which share the name of the last file.
class TableFiles {
 public:
  TableFiles(Platform& platform, FileNumber& file_number);

  // Puts what a file holds in the place of the table. required: a cancelled dialog means the file from before, and a
  // file that isn't there is made, empty, and read. Throws RuntimeError, and leaves the table alone, where the file
  // can't be read or made, or where there was no name.
  void Load(CipherTable& table);

  // Writes the record over the beginning of a file; what lies behind it stays. Asks where the file is there already.
  // required: failures are swallowed.
  void Save(const CipherTable& table);

 private:
  [[nodiscard]] bool MayWrite();

  Platform& platform_;
  FileNumber& file_number_;
  std::string path_;
};

}  // namespace pelmar
