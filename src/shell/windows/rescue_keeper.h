// Keeps what isn't saved yet, the documents or the notes, in this copy's rescue file while the program runs: within two
// seconds of a change, off the typing path, in a thread that does nothing else. It also brings back what copies that
// died have left, and lets go of their files only when all of it lies on the disk again.
#pragma once

#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "shell/documents.h"
#include "shell/rescue_file.h"
#include "shell/rescue_store.h"

namespace pelmar {

// What is kept, and how it comes back. The functions work on the state of now.
struct RescueContent {
  RescueKind kind;
  std::function<RescueRecord()> unsaved;
  // For a person's eyes.
  std::function<std::string(const std::vector<RescuedText>&)> readable;
  // Nothing is lost where such a text doesn't come back.
  std::function<bool(const RescuedText&)> known;
  // Returns what found no place.
  std::function<std::vector<RescuedText>(const std::vector<RescueRecord>&)> bring_back;
  // The question's words before and behind the number of texts, UTF-8.
  std::string_view found, wanted;
  // Where what doesn't come back stays readable, and what a person is told of that.
  std::string_view rest_name, rest_told;
};

RescueContent ModifiedDocuments(Documents& documents);

class RescueKeeper : public QObject {
  Q_OBJECT

 public:
  RescueKeeper(RescueContent content, Platform& platform);
  ~RescueKeeper() override;

  // Something changed that may have to be kept, or dropped.
  void Touch();
  // Writes at once and in this thread; where the install folder refuses, a readable file in the temporary folder.
  // Returns where it lies, "" where none had to be kept or none could be.
  std::string KeepNow();
  // Asks once about what copies that died left behind in the install folder; nothing where there is nothing.
  void Offer();
  // An ordinary end: nothing is left behind.
  void End();

  // Told when writing begins to fail, with the errno, and with 0 when it works again.
  std::function<void(int error)> on_failure;

 private:
  // Old rescue files whose texts came back or were refused, until their content is safe elsewhere.
  struct Owed {
    std::vector<AbandonedRescue> files;
    std::string rest;   // is to stay readable
    bool tell = false;  // of that, once it is
  };
  struct Found {
    std::vector<AbandonedRescue> files;
    std::vector<RescueRecord> records;
  };

  void Keep();
  int Write();
  int WriteChanged(RescueRecord record);
  void Wrote(int error);
  void Settle();
  void TellFailure(int error);
  void TellRest();
  Found FindOffers();

  RescueContent content_;
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
