// Writes unsaved documents or notes to a rescue file in a separate thread, usually within two seconds of a change. Each
// running copy of the program has its own rescue file. Offers the texts of crashed copies. Once all these texts are
// also on disk elsewhere, removes the rescue files of the crashed copies.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "shell/rescue_content.h"
#include "shell/rescue_writer.h"

namespace pelmar {

// The place of the unsaved texts.
struct Kept {
  enum Place { kNothingToKeep, kRescueFile, kReadableFile, kNowhere } place = kNothingToKeep;
  std::string path = {};
};

class RescueKeeper : public QObject {
  Q_OBJECT

 public:
  RescueKeeper(RescueContent& content, Platform& platform);

  // Call after a change. The write begins within a second, or later if an earlier write is still running.
  void KeepSoon();
  // Writes at once in the calling thread. If this fails, writes a readable file into the temporary folder.
  Kept KeepNow();
  // The notice for a person when an error ends the program, UTF-8; "" if there was nothing to keep.
  [[nodiscard]] std::string NoticeOf(const Kept& kept) const;
  // Asks whether to restore the texts of crashed copies, and restores them if the person agrees. Asks nothing if there
  // are no such texts.
  void Offer();
  // Call when no text needs rescue any more, for example at a normal end of the program. Removes this copy's rescue
  // file.
  void End();

  // Called with an errno when a write fails, unless the write before it failed with the same errno. Called with 0 at
  // the first successful write after a failure, or at End after a failure.
  std::function<void(int error)> on_failure;

 private:
  // Old rescue files whose texts were restored or refused. They are removed when all their texts are on disk elsewhere.
  struct Owed {
    LockFile offer;
    std::vector<std::string> files;
    std::string rest;          // the texts to write into a text file for a person
    bool report_rest = false;  // report the text file after it is written
  };

  [[nodiscard]] std::optional<RescueRecord> CopyUnsaved() const;
  void WriteInThread();
  int WriteAndWait();
  void AfterWrite(int error);
  void RemoveOldFiles();
  void ReportFailure(int error);
  void ReportRest();
  bool WriteReadable();
  std::vector<RescueRecord> ReadAbandoned(std::vector<std::string>& files);

  RescueContent& content_;
  Platform& platform_;
  QTimer timer_;
  RescueWriter writer_;
  int writes_ = 0;
  int pause_;
  int failure_ = 0;
  Owed owed_;
  struct {
    std::string path, text;
  } last_resort_;  // the file that KeepNow wrote into the temporary folder
};

}  // namespace pelmar
