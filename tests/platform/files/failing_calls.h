// The system calls of the file code, as this test program makes them, can be counted and made to fail: for tests that
// go through every point where a save can be cut off. Holds for the thread that sets it.
#pragma once

#include <string>

namespace pelmar {

struct FailingCalls {
  int number = 0;           // the call, from 1, that fails; 0 for none
  int error = 0;            // errno
  bool all_behind = false;  // every later one fails too
  bool counts = true;
  int made = 0;
  std::string steps = {};  // what each call did that matters to a power cut, a word each
};
inline thread_local FailingCalls failing{.counts = false};

// Opens of files without a name fail, as on file systems that haven't any.
inline thread_local bool no_unnamed_files = false;

}  // namespace pelmar
