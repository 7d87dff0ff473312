// The strip of five tabs spans the window beneath the text box; its tabs are visible at the right edge, which the text
// box leaves free. Captions run downwards. A tab without a file shows its number, an unsaved document a dot.
#pragma once

#include <QTabBar>
#include <array>
#include <bitset>

#include "shell/documents.h"

namespace pelmar {

class FileTab : public QTabBar {
  Q_OBJECT

 public:
  explicit FileTab(QWidget* parent = nullptr);

  // Sets the caption and the tool tip of a tab (from 1).
  void SetFace(int tab, const TabFace& face);
  // Shows a dot on the tab (from 1) of a document with unsaved changes.
  void SetUnsaved(int tab, bool unsaved);
  // Sets the width of the visible part at the right edge, in pixels.
  void SetStripWidth(int width);

 protected:
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void NameTab(int tab);
  [[nodiscard]] QRect VisibleRect(int index) const;
  void PaintTab(QPainter& painter, int index) const;

  int strip_width_ = 24;
  std::array<QString, kTabCount> captions_;
  std::bitset<kTabCount> unsaved_;
};

}  // namespace pelmar
