#include "platform/qt/controls/list_rows.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QStyledItemDelegate>

#include "platform/qt/key_router.h"

namespace pelmar {
namespace {

class OneLineDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  [[nodiscard]] QString displayText(const QVariant& value, const QLocale&) const override {
    constexpr int kShown = 1000;  // wider than any screen; laying out a huge row would take seconds
    const QChar sign(0xB6);
    return value.toString().left(kShown).replace(QLatin1String("\r\n"), sign).replace(u'\r', sign).replace(u'\n', sign);
  }
};

}  // namespace

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

void OnRowPicked(QListWidget& list, const std::function<void(int row)>& picked) {
  ChooseFirstByArrows(&list);
  QObject::connect(&list, &QListWidget::itemSelectionChanged, &list, [&list, picked] {
    const QList<QListWidgetItem*> rows = list.selectedItems();
    if (!rows.isEmpty()) picked(list.row(rows.first()));
  });
  QObject::connect(&list, &QListWidget::itemClicked, &list, [&list, picked](const QListWidgetItem* item) {
    if (item->isSelected()) picked(list.row(item));  // Ctrl with a click deselects the row
  });
}

QItemSelectionModel::SelectionFlags WithoutDeselection(QItemSelectionModel::SelectionFlags click) {
  return click.testFlag(QItemSelectionModel::Deselect) ? QItemSelectionModel::NoUpdate : click;
}

void ShowRowsOnOneLine(QListWidget& list) { list.setItemDelegate(new OneLineDelegate(&list)); }

}  // namespace pelmar
