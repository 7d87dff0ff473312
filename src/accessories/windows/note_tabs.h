// The tabs of the notes. The strip fills the window's client area, but only its row of tabs shows, above the text. In a
// narrow window the tabs show their numbers instead of captions.
#pragma once

#include <QTabBar>

namespace pelmar {

class NoteTabs : public QTabBar {
  Q_OBJECT

 public:
  explicit NoteTabs(QWidget* parent = nullptr);

  // In pixels: 330 twips, or more for a large font.
  [[nodiscard]] int RowHeight() const;

 protected:
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowCaptions(bool whole);
};

}  // namespace pelmar
