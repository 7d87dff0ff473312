#include "shell/rescue_writer.h"

#include <cerrno>
#include <new>
#include <system_error>
#include <utility>

namespace pelmar {

RescueWriter::RescueWriter(const RescueKind& kind, std::string folder, RescueStore::WriteFile write)
    : kind_(kind), store_(std::move(folder), kind.prefix, std::move(write)) {}

RescueWriter::~RescueWriter() { Wait(); }

void RescueWriter::Start(RescueRecord record, const std::function<void(int error)>& done) {
  Wait();
  running_ = true;
  try {
    thread_ = std::thread([this, done, to_write = std::move(record)]() mutable {
      const int error = WriteIfChanged(std::move(to_write));
      running_ = false;
      done(error);
    });
  } catch (const std::system_error&) {
    running_ = false;
    done(EAGAIN);
  }
}

void RescueWriter::Wait() {
  if (thread_.joinable()) thread_.join();
}

int RescueWriter::WriteNow(RescueRecord record) {
  Wait();
  written_.reset();
  return WriteIfChanged(std::move(record));
}

void RescueWriter::Remove() {
  Wait();
  written_.reset();
  store_.Keep({});
}

int RescueWriter::WriteIfChanged(RescueRecord record) {
  if (written_ == record) return 0;
  int error = ENOMEM;
  try {
    error = store_.Keep(RescueBytes(kind_, record));
  } catch (const std::bad_alloc&) {
    // The file of the previous write stays.
  }
  if (error == 0)
    written_ = std::move(record);
  else
    written_.reset();
  return error;
}

}  // namespace pelmar
