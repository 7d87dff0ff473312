// Hides windows of the program, for the lock.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <vector>

namespace pelmar {

// The destructor shows the windows again. They get no hide and show events, so they come back unchanged.
class OtherWindowsAway : public QObject {
 public:
  // Hides every visible window except `staying`.
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
