#include "accessories/windows/note_tabs.h"

#include <QStyleOptionTab>
#include <algorithm>

#include "accessories/notes.h"
#include "platform/twips.h"

namespace pelmar {
namespace {

constexpr int kRowHeight = 330;  // twips

QString Caption(int page) { return QStringLiteral("Poznámka %1").arg(page); }

}  // namespace

NoteTabs::NoteTabs(QWidget* parent) : QTabBar(parent) {
  for (int page = 1; page <= kNotePages; ++page) {
    const int tab = addTab(Caption(page));
    setTabData(tab, QStringLiteral("Note%1").arg(page));
    setTabToolTip(tab, Caption(page));
  }
}

int NoteTabs::RowHeight() const { return std::max(PixelsOf(kRowHeight), fontMetrics().height() + 4); }

QSize NoteTabs::tabSizeHint(int index) const {
  return {std::min(QTabBar::tabSizeHint(index).width(), width() / kNotePages), RowHeight()};
}
QSize NoteTabs::minimumTabSizeHint(int index) const { return tabSizeHint(index); }

void NoteTabs::initStyleOption(QStyleOptionTab* option, int index) const {
  QTabBar::initStyleOption(option, index);
  if (tabRect(index).width() < QTabBar::tabSizeHint(index).width()) option->text = QString::number(index + 1);
}

}  // namespace pelmar
