#include "files/line_ends.h"

#include <cstring>

#include "platform/error_text.h"
#include "platform/runtime_error.h"
#include "shell/file_number.h"

namespace pelmar {
namespace {

void Convert(Platform& platform, const std::string& path, std::string_view extension, OldTail tail,
             FileRewriter& rewriter) {
  const std::string target = ConvertedPath(path, extension);
  if (IsOwnSource(platform, path, target)) return;
  const BusyPointer busy(platform);
  const WriteOutcome outcome = platform.RewriteFile(path, target, tail, rewriter);
  if (outcome.error == 0) return;
  throw RuntimeError(outcome.error, "Konverze souboru " + path + " do " + target + ": " + ErrorText(outcome.error) +
                                        KeptNotice(outcome));
}

}  // namespace

// The loop has no branches, so a file that consists only of line ends is converted as fast as any other.
std::string_view ToLineFeeds::Rewrite(std::string_view piece) {
  if (out_.size() < piece.size()) out_.resize(piece.size());
  char* to = out_.data();
  char before = after_cr_ ? '\r' : '\0';
  for (const char ch : piece) {
    *to = ch == '\r' ? '\n' : ch;
    to += !(before == '\r' && ch == '\n');
    before = ch;
  }
  after_cr_ = before == '\r';
  const std::string_view out(out_.data(), static_cast<std::size_t>(to - out_.data()));
  if (!out.empty()) in_line_ = out.back() != '\n';
  result_length_ += out.size();
  return out;
}

std::string_view ToLineFeeds::Finish() {
  const std::string_view out = in_line_ ? "\n" : "";
  result_length_ += out.size();
  return out;
}

std::string_view ToCrLf::Rewrite(std::string_view piece) {
  if (out_.size() < 2 * piece.size()) out_.resize(2 * piece.size());
  char* to = out_.data();
  for (const char ch : piece) {
    *to = '\r';
    to += ch == '\n';
    *to++ = ch;
  }
  const std::string_view out(out_.data(), static_cast<std::size_t>(to - out_.data()));
  const void* const feed = out.empty() ? nullptr : memrchr(out.data(), '\n', out.size());
  if (feed != nullptr)
    result_length_ = put_ + static_cast<std::uint64_t>(static_cast<const char*>(feed) - out.data()) + 1;
  put_ += out.size();
  return out;
}

bool IsOwnSource(Platform& platform, const std::string& path, const std::string& target) {
  if (!platform.IsSameFile(path, target)) return false;
  platform.Message(MessageType::kOk, "Výsledek by přepsal převáděný soubor:\r\n" + target, kConversionTitle);
  return true;
}

std::string ConvertedPath(std::string_view path, std::string_view extension) {
  return std::string(path.substr(0, path.find('.') + 1)).append(extension);
}

void ConvertToUnix(Platform& platform, const std::string& path) {
  ToLineFeeds rewriter;
  Convert(platform, path, "unx", OldTail::kKeep, rewriter);
}

void ConvertToDos(Platform& platform, const std::string& path) {
  ToCrLf rewriter;
  Convert(platform, path, "dos", OldTail::kDrop, rewriter);
}

}  // namespace pelmar
