// The tabs of the notes. The strip reaches from the tool bar to the bottom of the window, and the text covers it below
// the row of tabs. In a narrow window the tabs show their numbers instead of captions.
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
