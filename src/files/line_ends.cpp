#include "files/line_ends.h"

#include <cstring>

#include "platform/busy.h"
#include "platform/error_text.h"
#include "platform/runtime_error.h"
#include "shell/file_number.h"

namespace pelmar {
namespace {

constexpr std::size_t kWord = sizeof(std::uint64_t);

// True where one of the eight characters is `ch`, found by arithmetic on all of them at once.
bool Holds(std::uint64_t word, char ch) {
  constexpr std::uint64_t kOnes = 0x0101010101010101;
  const std::uint64_t same = word ^ (kOnes * static_cast<unsigned char>(ch));
  return ((same - kOnes) & ~same & (kOnes << 7)) != 0;
}

// Copies `piece` to `to` and returns the end of what was written. `plain(word, at)` tells of eight characters whether
// they stay as they are; others go one by one through `step(at, to)`. No branch looks at a single character, so that a
// file of line ends alone is nearly as quick as any other.
template <typename Plain, typename Step>
char* CopyWith(std::string_view piece, char* to, Plain plain, Step step) {
  const char* at = piece.data();
  const char* const end = at + piece.size();
  for (; end - at >= static_cast<std::ptrdiff_t>(kWord); at += kWord) {
    std::uint64_t word = 0;
    std::memcpy(&word, at, kWord);
    if (plain(word, at)) {
      std::memcpy(to, &word, kWord);
      to += kWord;
    } else {
      for (std::size_t i = 0; i < kWord; ++i) to = step(at + i, to);
    }
  }
  for (; at < end; ++at) to = step(at, to);
  return to;
}

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

std::string_view ToLineFeeds::Rewrite(std::string_view piece) {
  if (piece.empty()) return {};
  if (out_.size() < piece.size()) out_.resize(piece.size());
  const bool after_cr = after_cr_;
  after_cr_ = piece.back() == '\r';
  if (after_cr && piece.front() == '\n') piece.remove_prefix(1);
  if (piece.empty()) return {};
  // With its first character done, each other one has one before it to look at.
  out_[0] = piece.front() == '\r' ? '\n' : piece.front();
  const char* const end = CopyWith(
      piece.substr(1), out_.data() + 1,
      [](std::uint64_t word, const char* at) { return !Holds(word, '\r') && at[-1] != '\r'; },
      [](const char* at, char* to) {
        *to = *at == '\r' ? '\n' : *at;
        return to + !(at[-1] == '\r' && *at == '\n');
      });
  const std::string_view out(out_.data(), static_cast<std::size_t>(end - out_.data()));
  in_line_ = out.back() != '\n';
  kept_ += out.size();
  return out;
}

std::string_view ToLineFeeds::Finish() {
  const std::string_view out = in_line_ ? "\n" : "";
  kept_ += out.size();
  return out;
}

std::string_view ToCrLf::Rewrite(std::string_view piece) {
  if (out_.size() < 2 * piece.size()) out_.resize(2 * piece.size());
  const char* const end = CopyWith(
      piece, out_.data(), [](std::uint64_t word, const char*) { return !Holds(word, '\n'); },
      [](const char* at, char* to) {
        *to = '\r';
        to += *at == '\n';
        *to = *at;
        return to + 1;
      });
  const std::string_view out(out_.data(), static_cast<std::size_t>(end - out_.data()));
  const void* const feed = out.empty() ? nullptr : memrchr(out.data(), '\n', out.size());
  if (feed != nullptr) kept_ = put_ + static_cast<std::uint64_t>(static_cast<const char*>(feed) - out.data()) + 1;
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
