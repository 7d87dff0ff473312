// The tabs of the notes. The strip spans the window's whole client area; only its row of tabs shows, above the text. In
// a window too narrow for the captions the tabs show their numbers.
#pragma once

#include <QTabBar>

namespace pelmar {

class NoteTabs : public QTabBar {
  Q_OBJECT

 public:
  explicit NoteTabs(QWidget* parent = nullptr);

  // 330 twips, in pixels; more only for a font that doesn't fit in.
  [[nodiscard]] int RowHeight() const;

 protected:
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowCaptions(bool whole);
};

}  // namespace pelmar
