// A platform without a screen. It lists the calls that a user or the system would notice, and takes its answers from
// queues that the test fills. A question throws std::logic_error if its queue is empty, so that no test passes by an
// answer that it didn't give. Files are in memory; a path in `files` that ends in "/" is a folder. A lock allows
// WritePrivateFile in another thread while the thread of the test reads a file or adds a call.
#pragma once

#include <algorithm>
#include <cerrno>
#include <deque>
#include <map>
#include <mutex>
#include <numeric>
#include <ostream>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "platform/platform.h"
#include "platform/twips.h"
#include "text/codepage.h"

namespace pelmar {

// Prints the place of a window in a failed comparison.
inline void PrintTo(const TwipsRect& place, std::ostream* out) {
  *out << place.width << 'x' << place.height << " at " << place.left << ',' << place.top;
}

// The platform is also the paper of its printer.
class ScriptedPlatform : public Platform, public Paper {
 public:
  // One string for each call, in order, with the call's texts in quotes. Lists failed writes too, but no reads.
  std::vector<std::string> calls;
  // Returns the calls so far and empties the list.
  std::vector<std::string> TakeCalls() { return std::exchange(calls, {}); }
  // Like TakeCalls, as one line with "; " after each call.
  std::string TakeCallsInOneLine() {
    std::string line;
    for (const std::string& call : TakeCalls()) line += call + "; ";
    return line;
  }

  std::deque<Answer> answers;  // to messages: kOk for an OK box, another answer for a question
  std::deque<std::optional<std::string>> inputs, opens, saves;

  std::map<std::string, std::string> files;
  std::set<std::string> private_files;
  std::map<std::string, int> read_errors, write_errors;  // errno by path
  std::string kept_content;                              // WriteOutcome::kept of failed writes
  std::function<void()> on_message;                      // called while a message is open
  std::optional<std::string> clipboard;

  LocalTime now{2024, 5, 6, 7, 8, 9};
  KeyStates keys;
  std::deque<double> draws;  // the results of Random(); after them 0, 0.25, 0.5 and 0.75 in turn
  int reseeds = 0;
  std::string install_folder = "/install/";
  PrintOutcome print_outcome{.printer = "P"};
  int busy = 0;  // the number of busy pointers that were set and not reset

  Answer Message(MessageType type, std::string_view text, std::string_view title) override {
    const std::string call = Note("message " + std::to_string(static_cast<int>(type)), {text, title});
    if (on_message) on_message();
    const Answer answer = Take(answers, call);
    const bool question = type != MessageType::kOk && type != MessageType::kOkInfo;
    if (question == (answer == Answer::kOk)) throw std::logic_error("no such button: " + call);
    return answer;
  }
  void ShowAbout(std::string_view title, std::string_view text) override { Note("about", {title, text}); }
  std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                      std::string_view initial) override {
    return Take(inputs, Note("input", {prompt, title, initial}));
  }
  std::optional<std::string> OpenDialog(std::string_view filter, int filter_index) override {
    return Take(opens, Note("open", {filter}, ' ' + std::to_string(filter_index)));
  }
  std::optional<std::string> SaveDialog(std::string_view filter, int filter_index) override {
    return Take(saves, Note("save", {filter}, ' ' + std::to_string(filter_index)));
  }

  const std::optional<std::string>& ClipboardContent() override { return clipboard; }
  void SetClipboardText(std::string_view text) override {
    Note("clipboard", {text});
    clipboard = std::string(text);
  }
  void ClearClipboard() override {
    Note("clipboard clear");
    clipboard.reset();
  }

  bool CanRead(const std::string& path) override { return ReadError(path) == 0; }
  FileBytes ReadFile(const std::string& path, std::optional<std::uint64_t> limit) override {
    const std::lock_guard hold(lock_);
    if (const int error = ReadError(path)) return {.error = error, .bytes = {}};
    return {.error = 0, .bytes = files[path].substr(0, limit.value_or(std::string::npos))};
  }
  WriteOutcome WriteDocument(const std::string& path, std::string_view bytes) override {
    Note("write " + path);
    if (const int error = ErrorAt(path, write_errors)) return {.error = error, .kept = kept_content};
    files[path] = std::string(bytes);
    return {};
  }
  int WritePrivateFile(const std::string& path, std::string_view bytes) override {
    const std::lock_guard hold(lock_);
    private_files.insert(path);
    return WriteDocument(path, bytes).error;
  }
  int WriteNewFile(const std::string& path, std::string_view bytes) override {
    Note("create " + path);
    if (const int error = ErrorAt(path, write_errors)) return error;
    return files.try_emplace(path, bytes).second ? 0 : EEXIST;
  }
  // Files with equal bytes have equal stamps.
  std::optional<FileStamp> Stamp(const std::string& path) override {
    const auto found = files.find(path);
    if (found == files.end()) return std::nullopt;
    return FileStamp{.changed = static_cast<std::int64_t>(std::hash<std::string>()(found->second))};
  }
  bool IsSameFile(const std::string& left, const std::string& right) override { return left == right; }
  std::string InstallFolder() override { return install_folder; }
  std::string ShareFolder() override { return "/share/"; }
  std::string TempFolder() override { return "/tmp/"; }

  PrintOutcome Print(const PrintFont& font, const std::string& name, const std::function<void(Paper&)>& draw) override {
    Note("print " + name + ' ' + font.name + ' ' + std::to_string(static_cast<int>(font.size)) +
         (font.bold ? " bold" : "") + (font.italic ? " italic" : ""));
    draw(*this);
    return print_outcome;
  }
  void AddToRecentDocuments(const std::string& path) override { Note("recent " + path); }
  void OpenWithDefaultProgram(const std::string& path) override { Note("default program " + path); }
  void StartAnotherCopy() override { Note("start copy"); }
  LocalTime Now() override { return now; }
  KeyStates Keys() override { return keys; }
  double Random() override {
    if (draws.empty()) return 0.25 * (drawn_++ % 4);
    return Take(draws, "a draw");
  }
  void ReseedRandom() override { ++reseeds; }
  // Sorts by the codes of the texts in upper case. Only the real platform has the Czech order.
  std::vector<std::size_t> SortedOrder(const std::vector<std::string_view>& texts) override {
    std::vector<std::size_t> order(texts.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [&](std::size_t index) { return ToUpper(texts[index]); });
    return order;
  }
  void SetBusyPointer(bool busy_now, BusyLook look) override {
    Note(std::string(look == BusyLook::kArrow ? "arrow " : "busy ") + (busy_now ? '1' : '0'));
    busy += busy_now ? 1 : -1;
  }

 private:
  // Adds a call to the list, with its texts in quotes before the `end`.
  std::string& Note(std::string call, std::initializer_list<std::string_view> texts = {}, const std::string& end = "") {
    for (const std::string_view text : texts) call += " \"" + std::string(text) + '"';
    const std::lock_guard hold(lock_);
    return calls.emplace_back(call + end);
  }
  template <typename Value>
  Value Take(std::deque<Value>& queue, const std::string& call) {
    if (queue.empty()) throw std::logic_error("no answer to " + call);
    Value answer = std::move(queue.front());
    queue.pop_front();
    return answer;
  }
  [[nodiscard]] int ErrorAt(const std::string& path, const std::map<std::string, int>& errors) const {
    if (const auto error = errors.find(path); error != errors.end()) return error->second;
    return path.ends_with('/') || files.contains(path + '/') ? EISDIR : 0;
  }
  [[nodiscard]] int ReadError(const std::string& path) const {
    const std::lock_guard hold(lock_);
    const int error = ErrorAt(path, read_errors);
    return error || files.contains(path) ? error : ENOENT;
  }

  [[nodiscard]] double Width() const override { return 100; }  // each character is one dot wide
  [[nodiscard]] std::size_t LinesPerPage() const override { return 3; }
  [[nodiscard]] double EndOf(double x, std::string_view text) const override {
    return x + static_cast<double>(text.size());
  }
  void Put(std::size_t line, double x, std::string_view text) override {
    Note("put " + std::to_string(line) + ' ' + std::to_string(static_cast<int>(x)), {text});
  }
  void NewPage() override { Note("page"); }

  int drawn_ = 0;
  mutable std::recursive_mutex lock_;
};

}  // namespace pelmar
