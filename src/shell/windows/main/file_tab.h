// The strip of five tabs. It lies under the text box and spans the window; its tabs show in the free strip at the
// right-hand edge, captions running downwards. A tab without a file shows its number, an unsaved document a dot.
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

  // Shows what the document says of a tab (from 1).
  void SetFace(int tab, const TabFace& face);
  // A dot tells that a document has changes that aren't saved.
  void SetUnsaved(int tab, bool unsaved);
  // How wide the free strip at the right-hand edge is, in pixels.
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
