#include "support/scripted_platform.h"

#include <algorithm>
#include <cerrno>
#include <numeric>
#include <stdexcept>
#include <utility>

#include "text/codepage.h"

namespace pelmar {
namespace {

std::string Quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

template <typename Value>
Value Take(std::deque<Value>& queue, const std::string& call) {
  if (queue.empty()) throw std::logic_error("nobody answers " + call);
  Value answer = std::move(queue.front());
  queue.pop_front();
  return answer;
}

class ScriptedPaper : public Paper {
 public:
  explicit ScriptedPaper(ScriptedPlatform& platform) : platform_(platform) {}
  [[nodiscard]] double Width() const override { return platform_.paper_width; }
  [[nodiscard]] std::size_t LinesPerPage() const override { return platform_.lines_per_page; }
  [[nodiscard]] double EndOf(double x, std::string_view text) const override {
    return x + static_cast<double>(text.size());
  }
  void Put(std::size_t line, double x, std::string_view text) override {
    platform_.calls.push_back("put " + std::to_string(line) + ' ' + std::to_string(static_cast<int>(x)) + ' ' +
                              Quoted(text));
  }
  void NewPage() override { platform_.calls.emplace_back("page"); }

 private:
  ScriptedPlatform& platform_;
};

}  // namespace

std::vector<std::string> ScriptedPlatform::TakeCalls() { return std::exchange(calls, {}); }

Answer ScriptedPlatform::Message(MessageType type, std::string_view text, std::string_view title) {
  calls.push_back("message " + std::to_string(static_cast<int>(type)) + ' ' + Quoted(text) + ' ' + Quoted(title));
  if (on_message) on_message();
  const Answer answer = Take(answers, calls.back());
  const bool question = type != MessageType::kOk && type != MessageType::kOkInfo;
  if (question == (answer == Answer::kOk)) throw std::logic_error("no such button: " + calls.back());
  return answer;
}

void ScriptedPlatform::ShowAbout(std::string_view title, std::string_view text) {
  calls.push_back("about " + Quoted(title) + ' ' + Quoted(text));
}

std::optional<std::string> ScriptedPlatform::InputBox(std::string_view prompt, std::string_view title,
                                                      std::string_view initial) {
  calls.push_back("input " + Quoted(prompt) + ' ' + Quoted(title) + ' ' + Quoted(initial));
  return Take(inputs, calls.back());
}

std::optional<std::string> ScriptedPlatform::OpenDialog(std::string_view filter, int filter_index) {
  calls.push_back("open " + Quoted(filter) + ' ' + std::to_string(filter_index));
  return Take(opens, calls.back());
}

std::optional<std::string> ScriptedPlatform::SaveDialog(std::string_view filter, int filter_index) {
  calls.push_back("save " + Quoted(filter) + ' ' + std::to_string(filter_index));
  return Take(saves, calls.back());
}

void ScriptedPlatform::SetClipboardText(std::string_view text) {
  calls.push_back("clipboard " + Quoted(text));
  clipboard = std::string(text);
}

void ScriptedPlatform::ClearClipboard() {
  calls.emplace_back("clipboard clear");
  clipboard.reset();
}

int ScriptedPlatform::ReadError(const std::string& path) const {
  if (const auto error = read_errors.find(path); error != read_errors.end()) return error->second;
  if (path.ends_with('/') || files.contains(path + '/')) return EISDIR;
  return files.contains(path) ? 0 : ENOENT;
}

int ScriptedPlatform::WriteError(const std::string& path) const {
  const auto error = write_errors.find(path);
  return error == write_errors.end() ? 0 : error->second;
}

bool ScriptedPlatform::CanRead(const std::string& path) { return ReadError(path) == 0; }

std::optional<FileStamp> ScriptedPlatform::Stamp(const std::string& path) {
  const auto found = files.find(path);
  if (found == files.end()) return std::nullopt;
  return FileStamp{.node = std::hash<std::string>()(found->second), .size = found->second.size()};
}

FileBytes ScriptedPlatform::ReadFile(const std::string& path, std::optional<std::uint64_t> limit) {
  if (const int error = ReadError(path)) return {.error = error, .bytes = {}};
  return {.error = 0, .bytes = files[path].substr(0, limit.value_or(std::string::npos))};
}

WriteOutcome ScriptedPlatform::WriteDocument(const std::string& path, std::string_view bytes) {
  calls.push_back("write " + path);
  if (const int error = WriteError(path)) return {.error = error, .kept = kept_content};
  if (path.ends_with('/') || files.contains(path + '/')) return {.error = EISDIR};
  files[path] = std::string(bytes);
  return {};
}

int ScriptedPlatform::WriteNewFile(const std::string& path, std::string_view bytes) {
  calls.push_back("create " + path);
  if (const int error = WriteError(path)) return error;
  return files.try_emplace(path, bytes).second ? 0 : EEXIST;
}

// In pieces of three bytes, so that every border is met.
int ScriptedPlatform::ReadByPieces(const std::string& path, const std::function<bool(std::string_view)>& take) {
  if (const int error = ReadError(path)) return error;
  const std::string_view bytes = files[path];
  for (std::size_t at = 0; at < bytes.size() && take(bytes.substr(at, 3)); at += 3) continue;
  return 0;
}

WriteOutcome ScriptedPlatform::RewriteFile(const std::string& source, const std::string& target, OldTail tail,
                                           FileRewriter& rewriter) {
  calls.push_back("rewrite " + source + ' ' + target);
  if (const int error = ReadError(source)) return {.error = error};
  std::string out;
  const std::string_view bytes = files[source];
  for (std::size_t at = 0; at < bytes.size(); at += 3) out += rewriter.Rewrite(bytes.substr(at, 3));
  out += rewriter.Finish();
  out.resize(static_cast<std::size_t>(rewriter.Kept()));
  if (const int error = WriteError(target)) return {.error = error, .kept = kept_content};
  const std::string& old = files[target];
  if (tail == OldTail::kKeep && old.size() > out.size()) out += old.substr(out.size());
  files[target] = out;
  return {};
}

PrintOutcome ScriptedPlatform::Print(const PrintFont& font, const std::string& name,
                                     const std::function<void(Paper&)>& draw) {
  calls.push_back("print " + name + ' ' + font.name + ' ' + std::to_string(static_cast<int>(font.size)) +
                  (font.bold ? " bold" : "") + (font.italic ? " italic" : ""));
  ScriptedPaper paper(*this);
  draw(paper);
  return print_outcome;
}

void ScriptedPlatform::AddToRecentDocuments(const std::string& path) { calls.push_back("recent " + path); }

bool ScriptedPlatform::OpenWithDefaultProgram(const std::string& path) {
  calls.push_back("default program " + path);
  return opens_programs;
}

bool ScriptedPlatform::StartAnotherCopy() {
  calls.emplace_back("start copy");
  return opens_programs;
}

double ScriptedPlatform::Random() {
  if (draws.empty()) return 0.25 * (drawn_++ % 4);
  const double draw = draws.front();
  draws.pop_front();
  return draw;
}

std::vector<std::size_t> ScriptedPlatform::SortedOrder(const std::vector<std::string_view>& texts) {
  std::vector<std::size_t> order(texts.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, {}, [&](std::size_t index) { return ToUpper(texts[index]); });
  return order;
}

void ScriptedPlatform::SetBusyPointer(bool busy_now) {
  calls.emplace_back(busy_now ? "busy 1" : "busy 0");
  busy += busy_now ? 1 : -1;
}

}  // namespace pelmar
