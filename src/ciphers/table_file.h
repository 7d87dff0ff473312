// Reads and writes the file of a cipher table (".pvt"). The file has no signature, so any file is read as a table. The
// first field that goes beyond the end of the file is zero or empty, and so are all fields after it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "ciphers/cipher_table.h"
#include "platform/platform.h"
#include "shell/file_number.h"

namespace pelmar {

inline constexpr std::string_view kTableFilter = "Pelmar VEX Šifrovací tabulka (*.pvt)|*.pvt";

CipherTable ReadTable(std::string_view bytes);
// Cuts each field to 65,535 bytes.
std::string TableBytes(const CipherTable& table);

// Loads and saves a table through the file dialogs. Load and Save share the last path that the person chose.
class TableFiles {
 public:
  TableFiles(Platform& platform, FileNumber& file_number);

  // Reads a table. required: if the person cancels, Load reads the file at the last path. required: a missing file,
  // even one chosen in the dialog, is created and read as empty. Throws RuntimeError and keeps the table if the file
  // can't be read or created, or if the person cancels and there is no last path.
  void Load(CipherTable& table);

  // Overwrites the start of a file. The rest of a longer file stays. If the file exists, Save first asks whether to
  // overwrite it. If the person cancels the file dialog, Save goes on with the last path, or ends if there is none.
  // required: errors are not reported.
  void Save(const CipherTable& table);

 private:
  [[nodiscard]] bool MayWrite();

  Platform& platform_;
  FileNumber& file_number_;
  std::string path_;
};

}  // namespace pelmar
