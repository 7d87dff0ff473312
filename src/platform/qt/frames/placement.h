// Brings a window to an outer place. The frame is known only a moment after the window is shown, and the window manager
// carries out requests with a delay. So Placement repeats its checks and requests until the window is in place or a
// time limit is over. Size and position are requested together: each request contains both, so separate requests would
// bring back old values.
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

  // When the checks of a new window end. kOneCheck: after the first check that finds the window in place.
  // kSeveralChecks: after several such checks in a row. Meanwhile the person may move the window, and the wish must
  // then return `now`.
  enum class EndAfter { kOneCheck, kSeveralChecks };

  // Does nothing before Begin.
  Placement(QWidget& window, Wish wish, EndAfter end_after = EndAfter::kOneCheck);

  // Places the window once it is shown. Before that, waits up to the time limit for a frame other than `old_frame`, the
  // frame before a change of state. If `maximised`, keeps the window maximised instead of placing the window.
  void Begin(const QMargins& old_frame = {}, bool maximised = false);
  // Whether the first frame of the window is known. Also true if the window got no frame within the time limit.
  [[nodiscard]] bool FrameKnown() const { return frame_known_; }

  // Called when FrameKnown becomes true, after the place has been requested.
  std::function<void()> on_frame;
  // Called when the window is in place, when the time limit is over, or when the window is hidden.
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

// Centres a window on its screen, but not under the panels of the desktop. Call before the window is shown.
void CentreOnScreen(QWidget& window);

}  // namespace pelmar
