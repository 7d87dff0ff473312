#include "shell/windows/rescue_keeper.h"

#include <QCoreApplication>
#include <utility>

#include "shell/common.h"

namespace pelmar {
namespace {

// Leaves time for the write within the two seconds that are promised.
constexpr int kDelay = 1000;

}  // namespace

RescueKeeper::RescueKeeper(Documents& documents, Platform& platform)
    : documents_(documents),
      platform_(platform),
      store_(platform.InstallFolder(),
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

std::string RescueKeeper::Bytes() const {
  const RescueRecord record = UnsavedDocuments(documents_);
  return record.documents.empty() ? std::string() : RescueBytes(record);
}

void RescueKeeper::Keep() {
  std::string bytes = Bytes();
  if (bytes == kept_) return;
  kept_ = bytes;
  writer_.start([this, bytes = std::move(bytes)] { store_.Keep(bytes); });
}

std::string RescueKeeper::KeepNow() {
  timer_.stop();
  writer_.waitForDone();
  const std::string bytes = Bytes();
  if (bytes.empty()) return {};
  if (store_.Keep(bytes) == 0) return store_.Path();
  const std::string readable =
      JoinPath(platform_.TempFolder(), "pelmar-rescued-" + std::to_string(QCoreApplication::applicationPid()) + ".txt");
  const bool kept = platform_.WriteFile(readable, ReadableRescue(UnsavedDocuments(documents_).documents)) == 0;
  return kept ? readable : std::string();
}

void RescueKeeper::End() {
  timer_.stop();
  writer_.waitForDone();
  store_.Keep({});
}

void OfferAbandoned(Documents& documents, Platform& platform) {
  std::vector<AbandonedRescue> found = FindAbandoned(platform.InstallFolder());
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
  if (!left.empty()) {
    // What found no tab, or wasn't wanted now, stays readable in a text file until the next time.
    const std::string path = JoinPath(platform.InstallFolder(), "rescued.txt");
    if (platform.WriteFile(path, ReadableRescue(left)) != 0) return;
    if (wanted)
      platform.Message(MessageType::kOkInfo, "Všechny dokumenty se nevešly do záložek. Zbylé jsou v souboru\r\n" + path,
                       "Záchrana");
  }
  for (AbandonedRescue& rescue : found) Discard(rescue);
}

}  // namespace pelmar
