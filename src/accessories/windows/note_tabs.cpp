#include "accessories/windows/note_tabs.h"

#include <algorithm>

#include "accessories/notes.h"
#include "platform/twips.h"

namespace pelmar {
namespace {

constexpr int kRowHeight = 330;  // twips

QString Caption(int page) { return QStringLiteral("Poznámka %1").arg(page); }

}  // namespace

NoteTabs::NoteTabs(QWidget* parent) : QTabBar(parent) {
  setExpanding(false);
  // Qt would centre scroll buttons vertically in this control, where the text box would cover the buttons.
  setUsesScrollButtons(false);
  setDrawBase(false);
  for (int page = 1; page <= kNotePages; ++page) {
    const int tab = addTab(Caption(page));
    setTabData(tab, QStringLiteral("Note%1").arg(page));
    setAccessibleTabName(tab, Caption(page));
    setTabToolTip(tab, Caption(page));
  }
}

void NoteTabs::ShowCaptions(bool whole) {
  for (int page = 1; page <= kNotePages; ++page) setTabText(page - 1, whole ? Caption(page) : QString::number(page));
}

void NoteTabs::resizeEvent(QResizeEvent* event) {
  int whole = 0;
  for (int page = 1; page <= kNotePages; ++page)
    whole += tabSizeHint(page - 1).width() + fontMetrics().horizontalAdvance(Caption(page)) -
             fontMetrics().horizontalAdvance(tabText(page - 1));
  ShowCaptions(whole <= width());
  QTabBar::resizeEvent(event);
}

int NoteTabs::RowHeight() const { return std::max(PixelsOf(kRowHeight), fontMetrics().height() + 4); }

QSize NoteTabs::tabSizeHint(int index) const { return {QTabBar::tabSizeHint(index).width(), RowHeight()}; }
QSize NoteTabs::minimumTabSizeHint(int index) const {
  return {QTabBar::minimumTabSizeHint(index).width(), RowHeight()};
}

}  // namespace pelmar
