#include "platform/qt/controls/first_choice.h"

#include <QAbstractItemView>
#include <QKeyEvent>

#include "platform/qt/key_router.h"

namespace pelmar {

void ChooseFirstByArrows(QAbstractItemView* list) {
  KeyRouter::Get().Add(KeyTurn::kField, *list, [list](QWidget&, const QKeyEvent& press) {
    const QModelIndex row = list->currentIndex();
    const int key = press.key();
    if (!row.isValid() || list->selectionModel()->hasSelection()) return false;
    if (key != Qt::Key_Down && key != Qt::Key_Up && key != Qt::Key_Home) return false;
    list->setCurrentIndex(row);
    return true;
  });
}

}  // namespace pelmar
