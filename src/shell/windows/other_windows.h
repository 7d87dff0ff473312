// Takes the program's other windows off the screen, and out of reach of assistive technology, for as long as it lives.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <vector>

namespace pelmar {

// The windows hear nothing of it: they come back where they were and as they were, without the reading anew that some
// do when a person opens them. One that is destroyed meanwhile stays away.
class OtherWindowsAway : public QObject {
 public:
  // Every window of the program that is on show but these.
  explicit OtherWindowsAway(const std::vector<const QWidget*>& staying);
  OtherWindowsAway(const OtherWindowsAway&) = delete;
  OtherWindowsAway& operator=(const OtherWindowsAway&) = delete;
  ~OtherWindowsAway() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void SetVisible(QWidget& window, bool visible);

  std::vector<QPointer<QWidget>> away_;
};

}  // namespace pelmar
