#include "shell/file_number.h"

#include <utility>

#include "platform/error_text.h"
#include "platform/paths.h"

namespace pelmar {
namespace {

void Check(const WriteOutcome& outcome, const std::string& path, const char* what) {
  if (outcome.error != 0)
    throw RuntimeError(outcome.error, "Soubor " + path + what + ": " + ErrorText(outcome.error) + KeptNotice(outcome));
}

constexpr char kCantWrite[] = " nelze zapsat";
constexpr char kCantOpen[] = " nelze otevřít";
constexpr char kCantRead[] = " nelze číst";

}  // namespace

bool FileExists(const FileNumber& number, Platform& platform, const std::string& path) {
  if (number.IsOpen()) return false;
  return platform.CanRead(path.substr(0, path.size() - (EndsInSeparator(path) ? 1 : 0)));
}

std::optional<std::string> ReadIfExists(const FileNumber& number, Platform& platform, const std::string& path,
                                        std::optional<std::uint64_t> limit) {
  if (number.IsOpen()) return std::nullopt;
  FileBytes file = platform.ReadFile(path, limit);
  // A file that was read needn't be opened again to test whether it exists.
  if (file.error != 0 && !FileExists(number, platform, path)) return std::nullopt;
  Check({.error = file.error}, path, kCantRead);
  return std::move(file.bytes);
}

std::string KeptNotice(const WriteOutcome& outcome) {
  return outcome.kept.empty() ? "" : "\r\nSoubor je poškozen, jeho původní obsah leží v " + outcome.kept;
}

int AppendOldTail(Platform& platform, const std::string& path, std::string& bytes) {
  const FileBytes old = platform.ReadFile(path, kAnySize);
  if (old.bytes.size() > bytes.size()) bytes.append(old.bytes, bytes.size());
  return old.error == ENOENT ? 0 : old.error;  // a missing file has no tail
}

void WriteFileOn(FileNumber& number, Platform& platform, const std::string& path, std::string_view bytes) {
  const FileNumberGuard open(number);
  Check(platform.WriteDocument(path, bytes), path, kCantWrite);
}

void WriteRecordOn(FileNumber& number, Platform& platform, const std::string& path, std::string record) {
  const FileNumberGuard open(number);
  Check({.error = AppendOldTail(platform, path, record)}, path, kCantWrite);
  Check(platform.WriteDocument(path, record), path, kCantWrite);
}

std::string ReadOrMakeOn(FileNumber& number, Platform& platform, const std::string& path, std::uint64_t limit) {
  const FileNumberGuard open(number);
  FileBytes file = platform.ReadFile(path, limit);
  Check(file.error == ENOENT ? platform.WriteDocument(path, {}) : WriteOutcome{.error = file.error}, path, kCantOpen);
  return std::move(file.bytes);
}

}  // namespace pelmar
