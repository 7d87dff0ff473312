// Keeps what isn't saved yet, the documents or the notes, in this copy's rescue file while the program runs: within two
// seconds of a change, off the typing path, in a thread that does nothing else.
#pragma once

#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "shell/documents.h"
#include "shell/rescue_file.h"
#include "shell/rescue_store.h"

namespace pelmar {

// What is kept. Both functions look at the state of now.
struct RescueContent {
  std::string_view prefix;                // of the rescue file's name
  std::function<std::string()> bytes;     // "" where nothing has to be kept
  std::function<std::string()> readable;  // the same for a person's eyes
};

RescueContent ModifiedDocuments(const Documents& documents);

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
  // An ordinary end: nothing is left behind.
  void End();

 private:
  void Keep();

  RescueContent content_;
  Platform& platform_;
  RescueStore store_;
  QTimer timer_;
  QThreadPool writer_;
  std::string kept_;
};

// What is left of a rescue: it stays readable in a file of the install folder, and the person is told where it lies,
// unless `told` is empty. False where it can't be written; then the rescue file must stay.
struct RescueRest {
  std::string_view file_name;
  std::string text;  // "" where nothing is left
  std::string told;  // UTF-8, before the path
};
bool LeaveReadable(Platform& platform, const RescueRest& rest);

// Offers back, once, what copies that died left behind in the install folder. Nothing to ask where there is nothing.
void OfferAbandoned(Documents& documents, Platform& platform);

}  // namespace pelmar
