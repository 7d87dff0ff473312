#include "shell/services/rescue_keeper.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <new>
#include <utility>

#include "platform/paths.h"
#include "shell/temp_file.h"

namespace pelmar {
namespace {

// The time from a change to its write, in milliseconds. Leaves time to finish the write within two seconds.
constexpr int kDelay = 1000;
// A failed write is repeated. The pauses double from kDelay up to this limit in milliseconds.
constexpr int kLongestPause = 60'000;

}  // namespace

RescueKeeper::RescueKeeper(RescueContent& content, Platform& platform)
    : content_(content),
      platform_(platform),
      writer_(content_.kind, platform.InstallFolder(),
              [&platform](const auto& path, std::string_view bytes) { return platform.WritePrivateFile(path, bytes); }),
      pause_(kDelay) {
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &RescueKeeper::WriteInThread);
}

void RescueKeeper::KeepSoon() {
  pause_ = kDelay;
  if (!timer_.isActive() || timer_.remainingTime() > kDelay) timer_.start(kDelay);
}

// The unsaved texts, or nothing if there isn't enough memory.
std::optional<RescueRecord> RescueKeeper::CopyUnsaved() const {
  try {
    return content_.Unsaved();
  } catch (const std::bad_alloc&) {
    return std::nullopt;
  }
}

void RescueKeeper::WriteInThread() {
  // On a slow disk an earlier write may still be running. Then the function runs again later, with the latest texts.
  if (writer_.IsRunning()) return timer_.start(kDelay);
  // The interface thread only copies the texts. The other thread writes the file.
  auto now = CopyUnsaved();
  if (!now) return AfterWrite(ENOMEM);
  writer_.Start(std::move(*now), [this, write = ++writes_](int error) {
    // A newer write makes this result obsolete.
    const auto after = [this, write, error] {
      if (write != writes_) return;
      AfterWrite(error);
      ReportRest();
    };
    QMetaObject::invokeMethod(this, after, Qt::QueuedConnection);
  });
}

int RescueKeeper::WriteAndWait() {
  timer_.stop();
  ++writes_;
  auto now = CopyUnsaved();
  const int error = now ? writer_.WriteNow(std::move(*now)) : ENOMEM;
  AfterWrite(error);
  return error;
}

void RescueKeeper::AfterWrite(int error) {
  if (error == 0) RemoveOldFiles();
  ReportFailure(error);
  if (error == 0 && owed_.files.empty()) {
    pause_ = kDelay;
  } else if (!timer_.isActive()) {
    timer_.start(pause_);
    pause_ = std::min(2 * pause_, kLongestPause);
  }
}

void RescueKeeper::ReportFailure(int error) {
  if (std::exchange(failure_, error) != error && on_failure) on_failure(error);
}

// Call when this copy's rescue file holds the restored texts, or when no text needs the rescue any more. If texts were
// refused or got no place, writes them into a text file. Then removes the old rescue files, unless this write failed.
void RescueKeeper::RemoveOldFiles() {
  if (owed_.files.empty()) return;
  if (!owed_.rest.empty()) {
    const std::string path = JoinPath(platform_.InstallFolder(), content_.words.rest_name);
    if (platform_.WritePrivateFile(path, owed_.rest) != 0) return;
    owed_.rest.clear();
  }
  for (const std::string& file : owed_.files) std::remove(file.c_str());
  owed_.files.clear();
  owed_.offer.Release();
}

Kept RescueKeeper::KeepNow() {
  if (WriteAndWait() == 0)
    return writer_.HasWritten() ? Kept{.place = Kept::kRescueFile, .path = writer_.Store().Path()} : Kept{};
  if (WriteReadable()) return {.place = Kept::kReadableFile, .path = last_resort_.path};
  return {.place = Kept::kNowhere};
}

bool RescueKeeper::WriteReadable() {
  try {
    const std::string readable = content_.Readable(content_.Unsaved().texts);
    // The desktop may ask the program several times to quit. One file is enough for the same texts.
    if (readable == last_resort_.text && platform_.CanRead(last_resort_.path)) return true;
    const TempFile file = WriteTempFile(platform_, "pelmar-" + std::string(content_.kind.prefix), ".txt", readable);
    if (file.error == 0) last_resort_ = {file.path, readable};
    return file.error == 0;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

std::string RescueKeeper::NoticeOf(const Kept& kept) const {
  const std::string what(content_.words.kept), where = what + " jsou zachovány v souboru\r\n" + kept.path + "\r\n";
  const bool older = writer_.Store().HasFile();  // the file of an earlier write
  switch (kept.place) {
    case Kept::kNothingToKeep:
      return {};
    case Kept::kRescueFile:
      return where + std::string(content_.words.next_time);
    case Kept::kReadableFile:
      return where + (older ? "Program sám nabídne jen starší znění" : "Program je sám nenabídne") +
             ", soubor si zkopírujte jinam.";
    case Kept::kNowhere:
      return what + " nebylo možné zachovat" + (older ? ", příští start nabídne jen starší znění." : ".");
  }
  return {};
}

void RescueKeeper::End() {
  timer_.stop();
  ++writes_;
  writer_.Remove();
  RemoveOldFiles();
  ReportFailure(0);
}

// Reads the rescue files, and returns their texts that the program doesn't have yet. Removes damaged files from the
// list `files`, but not from the disk.
std::vector<RescueRecord> RescueKeeper::ReadAbandoned(std::vector<std::string>& files) {
  std::vector<RescueRecord> records;
  std::vector<RescuedText> seen;
  // A text can be in two files: a copy of the program may crash after it kept the text and before it removed the old
  // file.
  const auto superfluous = [&](const RescuedText& text) {
    if (content_.IsHere(text) || std::ranges::find(seen, text) != seen.end()) return true;
    seen.push_back(text);
    return false;
  };
  std::erase_if(files, [&](const std::string& file) {
    auto record = ReadRescue(content_.kind, platform_.ReadFile(file, std::nullopt).bytes);
    if (!record) return true;
    std::erase_if(record->texts, superfluous);
    if (!record->texts.empty()) records.push_back(std::move(*record));
    return false;
  });
  return records;
}

void RescueKeeper::Offer() {
  std::vector<std::string> files = FindAbandoned(platform_.InstallFolder(), content_.kind.prefix, owed_.offer);
  if (files.empty()) return;
  const std::vector<RescueRecord> records = ReadAbandoned(files);
  if (files.empty()) return owed_.offer.Release();
  std::vector<RescuedText> left;
  for (const RescueRecord& record : records) left.insert(left.end(), record.texts.begin(), record.texts.end());
  bool wanted = false;
  if (!left.empty()) {
    const std::string question =
        std::string(content_.words.found) + std::to_string(left.size()) + ".\r\n" + std::string(content_.words.wanted);
    wanted = platform_.Confirmed(question, "Záchrana");
  }
  if (wanted) left = content_.BringBack(records);
  // Set only after the question. Otherwise a write during the question would remove the old files, although this copy's
  // rescue file doesn't hold their texts yet.
  owed_.files = std::move(files);
  // Texts without a place, or refused by the person, go into a readable text file. The file stays until a later rescue
  // has such texts too.
  owed_.rest = content_.Readable(left);
  owed_.report_rest = wanted && !left.empty();
  WriteAndWait();
  ReportRest();
}

void RescueKeeper::ReportRest() {
  if (!owed_.report_rest || !owed_.files.empty()) return;
  owed_.report_rest = false;
  platform_.Message(
      MessageType::kOkInfo,
      std::string(content_.words.rest_message) + "\r\n" + JoinPath(platform_.InstallFolder(), content_.words.rest_name),
      "Záchrana");
}

}  // namespace pelmar
