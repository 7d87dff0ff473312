#include "files/line_ends.h"

#include <cstring>

#include "shell/common.h"

namespace pelmar {
namespace {

// The text up to the next `stop`, taken off the front of `text`; all of it where there is none.
std::string_view TakeUpTo(std::string_view& text, char stop) {
  const void* const found = text.empty() ? nullptr : std::memchr(text.data(), stop, text.size());
  const std::size_t length =
      found == nullptr ? text.size() : static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
  const std::string_view taken = text.substr(0, length);
  text.remove_prefix(length);
  return taken;
}

void Convert(Platform& platform, const std::string& path, std::string_view extension, OldTail tail,
             FileRewriter& rewriter) {
  const std::string target = ConvertedPath(path, extension);
  if (platform.IsSameFile(path, target)) {
    platform.Message(MessageType::kOk, "Výsledek by přepsal převáděný soubor:" + std::string(kCrLf) + target,
                     "Konverze UNIX <-> DOS");
    return;
  }
  platform.SetBusyPointer(true);
  const int error = platform.RewriteFile(path, target, tail, rewriter);
  platform.SetBusyPointer(false);
  if (error != 0) throw RuntimeError(error, "Konverze souboru " + path + " do " + target + ": " + std::strerror(error));
}

}  // namespace

void ToLineFeeds::Rewrite(std::string_view piece, std::string& out) {
  if (piece.empty()) return;
  const std::size_t had = out.size();
  if (after_cr_ && piece.front() == '\n') piece.remove_prefix(1);
  after_cr_ = false;
  while (!piece.empty()) {
    out += TakeUpTo(piece, '\r');
    if (piece.empty()) break;
    out += '\n';
    piece.remove_prefix(1);
    after_cr_ = piece.empty();
    if (piece.starts_with('\n')) piece.remove_prefix(1);
  }
  put_ += out.size() - had;
  if (out.size() > had) in_line_ = out.back() != '\n';
}

std::uint64_t ToLineFeeds::Finish(std::string& out) {
  if (!in_line_) return put_;
  out += '\n';
  return ++put_;
}

void ToCrLf::Rewrite(std::string_view piece, std::string& out) {
  const std::size_t had = out.size();
  while (true) {
    out += TakeUpTo(piece, '\n');
    if (piece.empty()) break;
    out += kCrLf;
    piece.remove_prefix(1);
    last_line_end_ = put_ + out.size() - had;
  }
  put_ += out.size() - had;
}

std::uint64_t ToCrLf::Finish(std::string&) { return last_line_end_; }

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
