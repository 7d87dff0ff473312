#include "shell/file_number.h"

#include "platform/paths.h"

namespace pelmar {

bool FileExists(const FileNumber& number, Platform& platform, const std::string& path) {
  if (number.IsOpen()) return false;
  return platform.CanRead(path.substr(0, path.size() - (EndsInSeparator(path) ? 1 : 0)));
}

std::string KeptNotice(const WriteOutcome& outcome) {
  return outcome.kept.empty() ? "" : "\r\nSoubor je poškozen, jeho původní obsah leží v " + outcome.kept;
}

void WriteFileOn(FileNumber& number, Platform& platform, const std::string& path, std::string_view bytes) {
  const OpenNumber open(number);
  const WriteOutcome outcome = platform.WriteDocument(path, bytes);
  if (outcome.error != 0) throw RuntimeError(outcome.error, "Soubor " + path + " nelze zapsat" + KeptNotice(outcome));
}

}  // namespace pelmar
