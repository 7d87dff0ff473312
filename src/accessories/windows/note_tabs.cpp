#include "accessories/windows/note_tabs.h"

#include <algorithm>

#include "accessories/notes.h"
#include "shell/window_geometry.h"

namespace pelmar {
namespace {

constexpr int kRowHeight = 330;  // twips

}  // namespace

NoteTabs::NoteTabs(QWidget* parent) : QTabBar(parent) {
  setExpanding(false);
  // Arrows would lie in the middle of the strip, under the text. What stays of a caption cut in the middle is the number.
  setUsesScrollButtons(false);
  setElideMode(Qt::ElideMiddle);
  setDrawBase(false);
  for (int page = 1; page <= kNotePages; ++page)
    setTabData(addTab(QStringLiteral("Poznámka %1").arg(page)), QStringLiteral("Note%1").arg(page));
}

int NoteTabs::RowHeight() const { return std::max(PixelsOf(kRowHeight), fontMetrics().height() + 4); }

QSize NoteTabs::tabSizeHint(int index) const { return {QTabBar::tabSizeHint(index).width(), RowHeight()}; }
QSize NoteTabs::minimumTabSizeHint(int index) const {
  return {QTabBar::minimumTabSizeHint(index).width(), RowHeight()};
}

}  // namespace pelmar
