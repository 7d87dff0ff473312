// Brings a window to the place that is wanted of it, frame and all. The window manager tells a window's frame, and does
// what it was asked, only a moment after the window is shown or leaves a state; a wish of before is put right then, as
// a whole: size and position one after the other would each carry an old value of the other along.
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
  // The outer place that is wanted of a window that is at `now`.
  using Wish = std::function<TwipsRect(const TwipsRect& now)>;

  // When a new window is at its place for good: kFirst, at the first look that finds it there, so that somebody else
  // may move it next; kLasting, after several looks in a row, for a wish that leaves a moved window alone.
  enum class Trust { kFirst, kLasting };

  // Does nothing until it is told to begin.
  Placement(QWidget& window, Wish wish, Trust trust = Trust::kFirst);

  // Sees to the wish until it is met, as soon as the window is on show and has another frame than the one that is left.
  // A window that is wanted maximised is kept so meanwhile; its place isn't asked for.
  void Begin(const QMargins& left = {}, bool maximised = false);
  // True once the window manager has told the window's first frame, or gives it none.
  [[nodiscard]] bool FrameKnown() const { return frame_known_; }

  // Told when the first frame is there, and the wish is asked for.
  std::function<void()> on_frame;
  // Told when the wish is met, or as good as it gets.
  std::function<void()> on_end;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Look();
  void Apply();
  void End();

  QWidget& window_;
  Wish wish_;
  Trust trust_;
  QTimer timer_;
  QMargins left_;
  QDeadlineTimer deadline_;
  int met_ = 0;  // how often in a row the window was found where it should be
  bool maximised_ = false;
  bool mapped_ = false;
  bool frame_known_ = false;
};

// In the middle of the screen that it is on, clear of the desktop's panels. For a window that is about to be shown.
void CentreOnScreen(QWidget& window);

}  // namespace pelmar
