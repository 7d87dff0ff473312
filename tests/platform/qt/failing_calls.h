// The system calls of the file code, as this test program makes them, can be counted and made to fail or to kill: for
// tests that go through every point where a save can be cut off. Only calls of the thread that set it count.
#pragma once

namespace pelmar {

// The `number`th call (from 1) and, where `all_behind`, every later one fails with `error`, or with 0 kills the
// process. `number` 0 lets all pass.
void FailCall(int number, int error, bool all_behind = false);

// Opens of files without a name fail, as on file systems that haven't any.
void RefuseUnnamedFiles(bool refuse);

// How many calls there were since.
int CallsMade();

}  // namespace pelmar
