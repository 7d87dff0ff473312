// The tabs show which of the five documents is selected, and let the person select another. The strip of tabs is as
// wide as the window. The text box covers the strip except at the right edge. Captions run downwards. A tab without a
// file shows its number. The tab of an unsaved document shows a dot.
#pragma once

#include <QTabBar>
#include <array>

#include "shell/documents.h"

namespace pelmar {

class FileTab : public QTabBar {
  Q_OBJECT

 public:
  FileTab(Documents& documents, QWidget* parent);

  // Sets the width of the visible part at the right edge, in pixels.
  void SetStripWidth(int width);

 protected:
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  // Tabs count from 1, indexes from 0.
  void ShowFace(int tab);
  void ShowUnsaved();
  void SetAccessibleTabName(int tab);
  [[nodiscard]] QString CaptionAt(int index) const;
  [[nodiscard]] QRect VisibleRect(int index) const;
  void PaintTab(QPainter& painter, int index) const;

  const Documents& documents_;
  int strip_width_ = 24;
  std::array<Listening, 3> listenings_;
};

}  // namespace pelmar
