// The part of the session that windows may use.
#pragma once

#include "shell/stand_alone.h"

namespace pelmar {

class SessionState {
 public:
  virtual ~SessionState() = default;

  // The editor, or the accessory that is the whole program.
  [[nodiscard]] virtual StartMode Mode() const = 0;

  // True once the person can no longer refuse the close. The program is ending, and the settings are already stored.
  [[nodiscard]] virtual bool Closed() const = 0;

  // Copies the place and the look of the main window into the settings, but not its WindowState. Then writes the
  // settings file. Throws RuntimeError if the file can't be written.
  virtual void StoreSettings() = 0;
};

}  // namespace pelmar
