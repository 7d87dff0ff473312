// Keeps the modified documents in this copy's rescue file while the program runs: within two seconds of a change,
// off the typing path, in a thread that does nothing else.
#pragma once

#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "shell/documents.h"
#include "shell/rescue_file.h"
#include "shell/rescue_store.h"

namespace pelmar {

class RescueKeeper : public QObject {
  Q_OBJECT

 public:
  RescueKeeper(Documents& documents, Platform& platform);
  ~RescueKeeper() override;

  // Something changed that may have to be kept, or dropped.
  void Touch();
  // Writes at once and in this thread; where the install folder refuses, a readable file in the temporary folder.
  // Returns where the documents lie, "" where none had to be kept or none could be.
  std::string KeepNow();
  // An ordinary end: nothing is left behind.
  void End();

 private:
  void Keep();
  std::string Bytes() const;

  Documents& documents_;
  Platform& platform_;
  RescueStore store_;
  QTimer timer_;
  QThreadPool writer_;
  std::string kept_;
};

// Offers back, once, what copies that died left behind in the install folder. Nothing to ask where there is nothing.
void OfferAbandoned(Documents& documents, Platform& platform);

}  // namespace pelmar
