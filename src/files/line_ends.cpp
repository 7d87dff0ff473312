#include "files/line_ends.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/error_text.h"
#include "platform/runtime_error.h"
#include "shell/file_number.h"

namespace pelmar {
namespace {

WriteOutcome WriteUnix(Platform& platform, const std::string& target, std::string& text) {
  std::string bytes = ToLineFeeds(std::move(text));
  if (const int error = AppendOldTail(platform, target, bytes)) return {.error = error};
  return platform.WriteDocument(target, bytes);
}

WriteOutcome WriteDos(Platform& platform, const std::string& target, std::string& text) {
  return platform.WriteDocument(target, ToCrLf(text));
}

void Convert(Platform& platform, const std::string& path, std::string_view extension,
             WriteOutcome (*write)(Platform& platform, const std::string& target, std::string& text)) {
  const std::string target = ConvertedPath(path, extension);
  if (IsOwnSource(platform, path, target)) return;
  const BusyPointer busy(platform);
  FileBytes source = platform.ReadFile(path, kAnySize);
  const WriteOutcome outcome =
      source.error != 0 ? WriteOutcome{.error = source.error} : write(platform, target, source.bytes);
  if (outcome.error == 0) return;
  throw RuntimeError(outcome.error, "Konverze souboru " + path + " do " + target + ": " + ErrorText(outcome.error) +
                                        KeptNotice(outcome));
}

}  // namespace

// The loop has no branches, so a file that consists only of line ends is converted as fast as any other.
std::string ToLineFeeds(std::string text) {
  char* to = text.data();
  char before = '\0';
  for (const char ch : text) {
    *to = ch == '\r' ? '\n' : ch;
    to += !(before == '\r' && ch == '\n');
    before = ch;
  }
  text.resize(static_cast<std::size_t>(to - text.data()));
  if (!text.empty() && text.back() != '\n') text += '\n';
  return text;
}

std::string ToCrLf(std::string_view text) {
  text = text.substr(0, text.rfind('\n') + 1);
  std::string converted(text.size() + static_cast<std::size_t>(std::ranges::count(text, '\n')), '\0');
  char* to = converted.data();
  for (const char ch : text) {
    *to = '\r';
    to += ch == '\n';
    *to++ = ch;
  }
  return converted;
}

bool IsOwnSource(Platform& platform, const std::string& path, const std::string& target) {
  if (!platform.IsSameFile(path, target)) return false;
  platform.Message(MessageType::kOk, "Výsledek by přepsal převáděný soubor:\r\n" + target, kConversionTitle);
  return true;
}

std::string ConvertedPath(std::string_view path, std::string_view extension) {
  return std::string(path.substr(0, path.find('.') + 1)).append(extension);
}

void ConvertToUnix(Platform& platform, const std::string& path) { Convert(platform, path, "unx", WriteUnix); }

void ConvertToDos(Platform& platform, const std::string& path) { Convert(platform, path, "dos", WriteDos); }

}  // namespace pelmar
