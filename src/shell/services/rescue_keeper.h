// Keeps what isn't saved yet, the documents or the notes, in this copy's rescue file while the program runs: within two
// seconds of a change, off the typing path, in a thread that does nothing else. It also brings back what copies that
// died have left, and removes their files only when all of it lies on the disk again.
#pragma once

#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "shell/rescue_content.h"
#include "shell/rescue_store.h"

namespace pelmar {

// Where unsaved texts lie.
struct Kept {
  enum Place { kNothingToKeep, kRescueFile, kReadableFile, kNowhere } place = kNothingToKeep;
  std::string path = {};
};

class RescueKeeper : public QObject {
  Q_OBJECT

 public:
  RescueKeeper(RescueContent& content, Platform& platform);
  ~RescueKeeper() override;

  // Something changed that may have to be kept, or dropped: the file is written within two seconds.
  void KeepSoon();
  // Writes at once and in this thread; where the install folder refuses, a readable file in the temporary folder.
  Kept KeepNow();
  // What a person is told when the program ends by an error, UTF-8; "" where nothing had to be kept.
  [[nodiscard]] std::string NoticeOf(const Kept& kept) const;
  // Asks once about what copies that died left behind in the install folder; nothing where there is nothing.
  void Offer();
  // An ordinary end: this copy's file is removed.
  void End();

  // Called when writing begins to fail, with the errno, and with 0 when it works again.
  std::function<void(int error)> on_failure;

 private:
  // Old rescue files whose texts came back or were refused, until their content is safe elsewhere.
  struct Owed {
    LockFile offer;
    std::vector<std::string> files;
    std::string rest;   // is to stay readable
    bool tell = false;  // of that, once it is
  };

  [[nodiscard]] std::optional<RescueRecord> CopyUnsaved() const;
  void WriteInThread();
  int WriteAndWait();
  int WriteIfChanged(RescueRecord record);
  void AfterWrite(int error);
  void RemoveOldFiles();
  void ReportFailure(int error);
  void ReportRest();
  bool WriteReadable();
  std::vector<RescueRecord> ReadAbandoned(std::vector<std::string>& files);

  RescueContent& content_;
  Platform& platform_;
  RescueStore store_;
  QTimer timer_;
  QThreadPool writer_;
  std::optional<RescueRecord> written_;  // what lies on the disk, for the thread that writes; nothing where that failed
  int writes_ = 0;
  int pause_;
  int failure_ = 0;
  Owed owed_;
  struct {
    std::string path, text;
  } last_resort_;  // the file that KeepNow has made in the temporary folder
};

}  // namespace pelmar
