// Brings a window to an outer place. The frame is known only a moment after the window is shown, and the window manager
// carries out requests with a delay. So Placement repeats its checks and requests until the window is in place, a time
// limit is over or the window is hidden. Each request to the window manager contains a size and a position. If only the
// size were wished, the request would contain a position that may be outdated. So a wish contains both.
#pragma once

#include <QDeadlineTimer>
#include <QMargins>
#include <QObject>
#include <QTimer>
#include <functional>

#include "platform/qt/frames/outer_geometry.h"
#include "platform/twips.h"

namespace pelmar {

class Placement : public QObject {
 public:
  // Returns the wanted outer place. `now` is the current outer place.
  using Wish = std::function<TwipsRect(const TwipsRect& now)>;

  // When the checks of a new window (no `old_frame` in Begin) end. kOneCheck: after the first check that finds the
  // window in place. kSeveralChecks: after several such checks in a row. If the person moves the window during these
  // checks, the wish must return `now`.
  enum class EndAfter { kOneCheck, kSeveralChecks };

  // Does nothing before Begin.
  Placement(QWidget& window, Wish wish, EndAfter end_after = EndAfter::kOneCheck);

  // Once the window is shown, waits for a complete frame other than `old_frame`, but not longer than the time limit.
  // Then places the window, or keeps the window maximised if `maximised`. `old_frame` is the frame before a change of
  // state and empty for a new window.
  void Begin(const QMargins& old_frame = {}, bool maximised = false);
  // Whether the first frame of the window is known. Also true if the window got no frame within the time limit.
  [[nodiscard]] bool FrameKnown() const { return frame_known_; }

  // Called when FrameKnown becomes true, just after the first request. A window that is in place, minimised or
  // maximised gets no request.
  std::function<void()> on_frame;
  // Called when the checks end: the window is in place, the time limit is over, or the window was hidden.
  std::function<void()> on_end;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Check();
  void Apply();
  void End();

  QWidget& window_;
  Wish wish_;
  EndAfter end_after_;
  QTimer timer_;
  QMargins old_frame_;
  QDeadlineTimer deadline_;
  int checks_in_place_ = 0;  // how many checks in a row found the window in place
  bool maximised_ = false;
  bool deadline_set_ = false;
  bool frame_known_ = false;
};

// Centres a window on its screen, or puts it as near to the centre as the panels of the desktop allow. A window that is
// wider or higher than the area between the panels begins at the left or top edge of this area. Call before the window
// appears.
void CentreOnScreen(QWidget& window);

}  // namespace pelmar
