// A platform without a screen: it writes down what a person or the system would notice and answers from queues that
// the test fills. A question without an answer throws std::logic_error, so that no test passes by an answer that it
// didn't give. Files lie in memory; a path ending in "/" in `files` is a folder.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/platform.h"

namespace pelmar {

class ScriptedPlatform : public Platform {
 public:
  // One string a call, in order, texts as they were given: `message 52 "text" "title"`, `about "title" "text"`, `input
  // "prompt" "title" "initial"`, `open "filter" 2`, `save "filter" 2`, `write path` and `create path` (also failed
  // ones), `print name font size bold italic`, `page`, `put line x "text"`, `recent path`, `default
  // program path`, `start copy`, `clipboard "text"`, `clipboard clear`, `busy 1`. Reading leaves no trace.
  std::vector<std::string> calls;
  // The calls so far, which are then forgotten.
  std::vector<std::string> TakeCalls() { return std::exchange(calls, {}); }
  const std::string& Note(const std::string& call);

  std::deque<Answer> answers;  // to messages; an OK box takes only kOk, a question only kYes and kNo
  std::deque<std::optional<std::string>> inputs, opens, saves;

  std::map<std::string, std::string> files;
  std::set<std::string> private_files;
  std::map<std::string, int> read_errors, write_errors;  // errno by path
  std::string kept_content;                              // what failed writes tell of the old content
  std::function<void()> on_message;                      // called while a message is on show
  std::optional<std::string> clipboard;

  LocalTime now{2024, 5, 6, 7, 8, 9};
  KeyStates keys;
  std::deque<double> draws;  // Random() takes these first, then 0, 0.25, 0.5 and 0.75 in turn.
  int reseeds = 0;
  std::string install_folder = "/install/", temp_folder = "/tmp/", share_folder = "/share/";
  bool opens_programs = true;  // what OpenWithDefaultProgram and StartAnotherCopy answer
  PrintOutcome print_outcome;
  double paper_width = 100;  // each character is one dot wide
  std::size_t lines_per_page = 3;
  int busy = 0;  // how many busy pointers are in force

  Answer Message(MessageType type, std::string_view text, std::string_view title) override;
  void ShowAbout(std::string_view title, std::string_view text) override;
  std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                      std::string_view initial) override;
  std::optional<std::string> OpenDialog(std::string_view filter, int filter_index) override;
  std::optional<std::string> SaveDialog(std::string_view filter, int filter_index) override;
  const std::optional<std::string>& ClipboardContent() override { return clipboard; }
  std::uint64_t ClipboardRevision() override { return 1 + std::hash<std::optional<std::string>>()(clipboard) / 2; }
  void SetClipboardText(std::string_view text) override;
  void ClearClipboard() override;
  bool CanRead(const std::string& path) override { return ReadError(path) == 0; }
  FileBytes ReadFile(const std::string& path, std::optional<std::uint64_t> limit) override;
  WriteOutcome WriteDocument(const std::string& path, std::string_view bytes) override;
  int WritePrivateFile(const std::string& path, std::string_view bytes) override {
    private_files.insert(path);
    return WriteDocument(path, bytes).error;
  }
  int WriteNewFile(const std::string& path, std::string_view bytes) override;
  int ReadByPieces(const std::string& path, const std::function<bool(std::string_view piece)>& take) override;
  WriteOutcome RewriteFile(const std::string& source, const std::string& target, OldTail tail,
                           FileRewriter& rewriter) override;
  // A file's stamp is its bytes', by a checksum.
  std::optional<FileStamp> Stamp(const std::string& path) override;
  bool IsSameFile(const std::string& left, const std::string& right) override { return left == right; }
  std::string InstallFolder() override { return install_folder; }
  std::string ShareFolder() override { return share_folder; }
  std::string TempFolder() override { return temp_folder; }
  PrintOutcome Print(const PrintFont& font, const std::string& name, const std::function<void(Paper&)>& draw) override;
  void AddToRecentDocuments(const std::string& path) override { Note("recent " + path); }
  bool OpenWithDefaultProgram(const std::string& path) override {
    return Note("default program " + path), opens_programs;
  }
  bool StartAnotherCopy() override { return Note("start copy"), opens_programs; }
  LocalTime Now() override { return now; }
  KeyStates Keys() override { return keys; }
  double Random() override;
  void ReseedRandom() override { ++reseeds; }
  // By the codes of the upper-case letters: the Czech order is the real platform's affair.
  std::vector<std::size_t> SortedOrder(const std::vector<std::string_view>& texts) override;
  void SetBusyPointer(bool busy_now) override;

  // The calls in one line, "; " behind each; they are forgotten then.
  std::string TakeTold() {
    std::string told;
    for (const std::string& call : TakeCalls()) told += call + "; ";
    return told;
  }

 private:
  [[nodiscard]] int ReadError(const std::string& path) const;
  [[nodiscard]] int WriteError(const std::string& path) const;

  int drawn_ = 0;
};

}  // namespace pelmar
