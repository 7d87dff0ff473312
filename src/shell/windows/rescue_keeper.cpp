#include "shell/windows/rescue_keeper.h"

#include <QCoreApplication>
#include <utility>

#include "platform/paths.h"

namespace pelmar {
namespace {

// Leaves time for the write within the two seconds that are promised.
constexpr int kDelay = 1000;

}  // namespace

RescueContent ModifiedDocuments(const Documents& documents) {
  return {kDocumentsRescue,
          [&documents] {
            const RescueRecord record = UnsavedDocuments(documents);
            return record.documents.empty() ? std::string() : RescueBytes(record);
          },
          [&documents] { return ReadableRescue(UnsavedDocuments(documents).documents); }};
}

RescueKeeper::RescueKeeper(RescueContent content, Platform& platform)
    : content_(std::move(content)),
      platform_(platform),
      store_(platform.InstallFolder(), content_.prefix,
             [&platform](const std::string& path, std::string_view bytes) { return platform.WriteFile(path, bytes); }) {
  writer_.setMaxThreadCount(1);
  timer_.setSingleShot(true);
  timer_.setInterval(kDelay);
  connect(&timer_, &QTimer::timeout, this, &RescueKeeper::Keep);
}

RescueKeeper::~RescueKeeper() { writer_.waitForDone(); }

void RescueKeeper::Touch() {
  if (!timer_.isActive()) timer_.start();
}

void RescueKeeper::Keep() {
  std::string bytes = content_.bytes();
  if (bytes == kept_) return;
  kept_ = bytes;
  writer_.start([this, bytes = std::move(bytes)] { store_.Keep(bytes); });
}

std::string RescueKeeper::KeepNow() {
  timer_.stop();
  writer_.waitForDone();
  kept_ = content_.bytes();
  const int error = store_.Keep(kept_);
  if (kept_.empty()) return {};
  if (error == 0) return store_.Path();
  const std::string name =
      "pelmar-" + std::string(content_.prefix) + std::to_string(QCoreApplication::applicationPid()) + ".txt";
  const std::string readable = JoinPath(platform_.TempFolder(), name);
  const bool kept = platform_.WriteFile(readable, content_.readable()) == 0;
  return kept ? readable : std::string();
}

void RescueKeeper::End() {
  timer_.stop();
  writer_.waitForDone();
  kept_.clear();
  store_.Keep({});
}

bool LeaveReadable(Platform& platform, const RescueRest& rest) {
  if (rest.text.empty()) return true;
  const std::string path = JoinPath(platform.InstallFolder(), rest.file_name);
  if (platform.WriteFile(path, rest.text) != 0) return false;
  if (!rest.told.empty()) platform.Message(MessageType::kOkInfo, rest.told + "\r\n" + path, "Záchrana");
  return true;
}

void OfferAbandoned(Documents& documents, Platform& platform) {
  std::vector<AbandonedRescue> found = FindAbandoned(platform.InstallFolder(), kDocumentsRescue);
  std::vector<RescueRecord> records;
  std::size_t count = 0;
  for (const AbandonedRescue& rescue : found) {
    if (auto record = ReadRescue(platform.ReadFile(rescue.path, std::nullopt).bytes)) {
      count += record->documents.size();
      records.push_back(std::move(*record));
    }
  }
  if (count == 0) return;
  const std::string question =
      "Program minule neskončil řádně. Zachované neuložené dokumenty: " + std::to_string(count) +
      ".\r\nVrátit je do editoru ?";
  const bool wanted = platform.Message(MessageType::kYesNoWarning, question, "Záchrana") == Answer::kYes;
  std::vector<RescuedDocument> left;
  if (wanted) {
    left = BringBack(documents, records);
  } else {
    for (const RescueRecord& record : records)
      left.insert(left.end(), record.documents.begin(), record.documents.end());
  }
  // What found no tab, or wasn't wanted now, stays readable in a text file until the next time.
  if (!LeaveReadable(platform, {"rescued.txt", ReadableRescue(left),
                                wanted ? "Všechny dokumenty se nevešly do záložek. Zbylé jsou v souboru" : ""}))
    return;
  for (AbandonedRescue& rescue : found) Discard(rescue);
}

}  // namespace pelmar
