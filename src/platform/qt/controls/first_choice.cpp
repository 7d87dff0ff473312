#include "platform/qt/controls/first_choice.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace pelmar {
namespace {

class FirstChoice : public QObject {
 public:
  explicit FirstChoice(QAbstractItemView* list) : QObject(list), list_(list) { list->installEventFilter(this); }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || list_->selectionModel()->hasSelection()) return false;
    const QModelIndex row = list_->currentIndex();
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (!row.isValid() || (key != Qt::Key_Down && key != Qt::Key_Up && key != Qt::Key_Home)) return false;
    list_->setCurrentIndex(row);
    return true;
  }

 private:
  QAbstractItemView* list_;
};

}  // namespace

void ChooseFirstByArrows(QAbstractItemView* list) { new FirstChoice(list); }

}  // namespace pelmar
