#include "shell/windows/rescue_keeper.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/paths.h"
#include "shell/rescued_documents.h"
#include "shell/temp_file.h"

namespace pelmar {
namespace {

// Leaves time for the write within the two seconds that are promised.
constexpr int kDelay = 1000;
// A write that failed is tried again after pauses that double from kDelay up to this.
constexpr int kLongestPause = 60'000;

}  // namespace

RescueContent ModifiedDocuments(Documents& documents) {
  return {.kind = kDocumentsRescue,
          .unsaved = [&documents] { return UnsavedDocuments(documents); },
          .readable = ReadableDocuments,
          .known = [](const RescuedText&) { return false; },
          .bring_back = [&documents](const auto& records) { return BringBackDocuments(documents, records); },
          .found = "Program minule neskončil řádně.\r\nPočet zachovaných dokumentů: ",
          .wanted = "Vrátit je do editoru ?",
          .rest_name = "rescued.txt",
          .rest_told = "Všechny dokumenty se nevešly do záložek. Zbylé jsou v souboru"};
}

RescueKeeper::RescueKeeper(RescueContent content, Platform& platform)
    : content_(std::move(content)),
      platform_(platform),
      store_(platform.InstallFolder(), content_.kind.prefix,
             [&platform](const auto& path, std::string_view bytes) { return platform.WritePrivateFile(path, bytes); }),
      pause_(kDelay) {
  writer_.setMaxThreadCount(1);
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &RescueKeeper::Keep);
}

RescueKeeper::~RescueKeeper() { writer_.waitForDone(); }

void RescueKeeper::Touch() {
  pause_ = kDelay;
  if (!timer_.isActive() || timer_.remainingTime() > kDelay) timer_.start(kDelay);
}

void RescueKeeper::Keep() {
  // A slow disk gets the latest text once it is ready, not one copy after another.
  if (writer_.activeThreadCount() > 0) return timer_.start(kDelay);
  // The copy is all that a long document costs the person who types.
  writer_.start([this, write = ++writes_, now = content_.unsaved()]() mutable {
    const int error = WriteChanged(std::move(now));
    // Only the last write tells how things stand.
    const auto wrote = [this, write, error] {
      if (write != writes_) return;
      Wrote(error);
      TellRest();
    };
    QMetaObject::invokeMethod(this, wrote, Qt::QueuedConnection);
  });
}

int RescueKeeper::WriteChanged(RescueRecord record) {
  if (written_ == record) return 0;
  const int error = store_.Keep(RescueBytes(content_.kind, record));
  written_.reset();
  if (error == 0) written_ = std::move(record);
  return error;
}

int RescueKeeper::Write() {
  writer_.waitForDone();
  timer_.stop();
  ++writes_;
  written_.reset();
  const int error = WriteChanged(content_.unsaved());
  Wrote(error);
  return error;
}

void RescueKeeper::Wrote(int error) {
  if (error == 0) Settle();
  TellFailure(error);
  if (error == 0 && owed_.files.empty()) {
    pause_ = kDelay;
  } else if (!timer_.isActive()) {
    timer_.start(pause_);
    pause_ = std::min(2 * pause_, kLongestPause);
  }
}

void RescueKeeper::TellFailure(int error) {
  if (std::exchange(failure_, error) != error && on_failure) on_failure(error);
}

// What came back has just been written; the old files go as soon as the rest lies on the disk as well.
void RescueKeeper::Settle() {
  if (!owed_.rest.empty()) {
    if (platform_.WritePrivateFile(JoinPath(platform_.InstallFolder(), content_.rest_name), owed_.rest) != 0) return;
    owed_.rest.clear();
  }
  for (AbandonedRescue& rescue : owed_.files) Discard(rescue);
  owed_.files.clear();
}

std::string RescueKeeper::KeepNow() {
  const int error = Write();
  if (error == 0) return written_->texts.empty() ? std::string() : store_.Path();
  const std::string readable = content_.readable(content_.unsaved().texts);
  if (readable.empty()) return {};
  if (readable == last_resort_.text && platform_.CanRead(last_resort_.path)) return last_resort_.path;
  const TempFile file = WriteTempFile(platform_, "pelmar-" + std::string(content_.kind.prefix), ".txt", readable);
  if (file.error != 0) return {};
  last_resort_ = {file.path, readable};  // the end of a session asks several times
  return file.path;
}

void RescueKeeper::End() {
  writer_.waitForDone();
  timer_.stop();
  ++writes_;
  written_.reset();
  store_.Keep({});
  Settle();
  TellFailure(0);
}

// A file that can't be read, or isn't whole, stays where it is.
RescueKeeper::Found RescueKeeper::FindOffers() {
  Found found;
  std::vector<RescuedText> seen;
  // A copy that died between keeping what it had brought back and letting go of the old file leaves a text twice.
  const auto superfluous = [&](const RescuedText& text) {
    if (content_.known(text) || std::ranges::find(seen, text) != seen.end()) return true;
    seen.push_back(text);
    return false;
  };
  for (AbandonedRescue& rescue : FindAbandoned(platform_.InstallFolder(), content_.kind.prefix)) {
    auto record = ReadRescue(content_.kind, platform_.ReadFile(rescue.path, std::nullopt).bytes);
    if (!record) continue;
    std::erase_if(record->texts, superfluous);
    if (!record->texts.empty()) found.records.push_back(std::move(*record));
    found.files.push_back(std::move(rescue));
  }
  return found;
}

void RescueKeeper::Offer() {
  Found found = FindOffers();
  std::vector<RescuedText> left;
  for (const RescueRecord& record : found.records) left.insert(left.end(), record.texts.begin(), record.texts.end());
  bool wanted = false;
  if (!left.empty()) {
    const std::string question =
        std::string(content_.found) + std::to_string(left.size()) + ".\r\n" + std::string(content_.wanted);
    wanted = platform_.Message(MessageType::kYesNoWarning, question, "Záchrana") == Answer::kYes;
  }
  if (wanted) left = content_.bring_back(found.records);
  // Only now: what is written while the question stands holds nothing of these files yet.
  std::ranges::move(found.files, std::back_inserter(owed_.files));
  // What found no place, or wasn't wanted now, stays readable in a text file until the next time.
  owed_.rest += content_.readable(left);
  owed_.tell = owed_.tell || (wanted && !left.empty());
  if (owed_.files.empty()) return;
  Write();
  TellRest();
}

void RescueKeeper::TellRest() {
  if (!owed_.tell || !owed_.files.empty()) return;
  owed_.tell = false;
  platform_.Message(MessageType::kOkInfo,
                    std::string(content_.rest_told) + "\r\n" + JoinPath(platform_.InstallFolder(), content_.rest_name),
                    "Záchrana");
}

}  // namespace pelmar
