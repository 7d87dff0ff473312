// The tabs of the notes. The control reaches from the tool bar to the bottom of the window. Below the row of tabs, the
// text box covers the control. The text box would also cover scroll buttons, so the form turns scroll buttons off. In a
// narrow window the tabs show only the numbers of the pages.
#pragma once

#include <QTabBar>

namespace pelmar {

class NoteTabs : public QTabBar {
  Q_OBJECT

 public:
  explicit NoteTabs(QWidget* parent = nullptr);

  // The height of the row of tabs, in pixels: 330 twips, or more for a large font.
  [[nodiscard]] int RowHeight() const;

 protected:
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override;
  void initStyleOption(QStyleOptionTab* option, int index) const override;
};

}  // namespace pelmar
