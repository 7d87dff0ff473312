// Writes the rescue file of this copy of the program, in a second thread or at once in the calling thread. Call all
// functions from one thread.
#pragma once

#include <atomic>
#include <functional>
#include <optional>
#include <string>
#include <thread>

#include "shell/rescue_file.h"
#include "shell/rescue_store.h"

namespace pelmar {

class RescueWriter {
 public:
  // `write` is called from both threads, but never at the same time. `folder` ends in a separator.
  RescueWriter(const RescueKind& kind, std::string folder, RescueStore::WriteFile write);
  // Calls Wait.
  ~RescueWriter();
  RescueWriter(const RescueWriter&) = delete;
  RescueWriter& operator=(const RescueWriter&) = delete;

  // Waits for an earlier write. Then the second thread writes the record, unless the file already holds this record. In
  // both cases the second thread calls `done` with 0 or errno. If no thread can be started, Start itself calls `done`
  // with EAGAIN.
  void Start(RescueRecord record, const std::function<void(int error)>& done);
  [[nodiscard]] bool IsRunning() const { return running_; }
  // Waits for the running write and its call of `done`.
  void Wait();
  // Waits for the running write, then writes the record in the calling thread. Returns 0 or errno.
  int WriteNow(RescueRecord record);
  // Waits for the running write, then removes the file.
  void Remove();

  // True if the last write succeeded and the file holds texts. Call only when no write is running.
  [[nodiscard]] bool HasWritten() const { return written_ && !written_->texts.empty(); }
  [[nodiscard]] const RescueStore& Store() const { return store_; }

 private:
  int WriteIfChanged(RescueRecord record);

  const RescueKind kind_;
  RescueStore store_;
  std::optional<RescueRecord> written_;  // the content of the file, if known
  std::atomic<bool> running_ = false;
  std::thread thread_;
};

}  // namespace pelmar
