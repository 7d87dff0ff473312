// Counts the system calls of the file code and lets chosen calls fail, so that a test can interrupt a save at each of
// them. Each thread has its own settings.
#pragma once

#include <string>

namespace pelmar {

struct FailingCalls {
  int number = 0;          // the call, from 1, that fails; 0 for none
  int error = 0;           // errno
  bool all_later = false;  // all later calls fail too
  bool counts = true;      // calls are counted, and fsync doesn't wait for the disk
  int made = 0;            // calls so far
  std::string steps = {};  // one word for each call whose order matters after a power cut
};
inline thread_local FailingCalls failing{.counts = false};

// Opening a file without a name fails, as on a file system that doesn't support such files.
inline thread_local bool no_unnamed_files = false;

}  // namespace pelmar
