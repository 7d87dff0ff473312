#include "platform/qt/controls/scrolled_contents.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

namespace pelmar {
namespace {

constexpr QSize kLeastView(200, 96);

// Whether the layout contains a button, and nothing except buttons and spacers. The keys of a keypad don't count as
// buttons.
bool HoldsButtonsOnly(const QLayout& layout) {
  int buttons = 0;
  for (int i = 0; i < layout.count(); ++i) {
    QLayoutItem* item = layout.itemAt(i);
    if (item->spacerItem() != nullptr) continue;
    if (item->widget() == nullptr || item->widget()->metaObject() != &QPushButton::staticMetaObject) return false;
    ++buttons;
  }
  return buttons > 0;
}

// Takes the last item out of `contents` if this item is a layout of buttons. Otherwise makes a row of the buttons
// `ending`, or returns null if `ending` is empty. The caller owns the result.
QLayout* TakeButtons(QLayout& contents, const QList<QPushButton*>& ending) {
  QLayoutItem* last = contents.count() > 0 ? contents.itemAt(contents.count() - 1) : nullptr;
  if (last != nullptr && last->layout() != nullptr && HoldsButtonsOnly(*last->layout()))
    return contents.takeAt(contents.count() - 1)->layout();
  if (ending.isEmpty()) return nullptr;
  auto* row = new QHBoxLayout;
  row->addStretch();
  for (QPushButton* button : ending) row->addWidget(button);
  return row;
}

QScrollArea* MakeView(QWidget& window, QWidget* inner) {
  auto* view = new QScrollArea(&window);
  view->setFrameShape(QFrame::NoFrame);
  view->setFocusPolicy(Qt::NoFocus);  // the Tab key reaches the widgets inside, and the area scrolls to them
  view->setMinimumSize(kLeastView);
  view->setWidgetResizable(true);
  view->setWidget(inner);
  return view;
}

}  // namespace

void ScrollContents(QWidget& window, const QList<QPushButton*>& ending) {
  QLayout* contents = window.layout();
  const QSize needed = contents->totalMinimumSize();  // before the move, since moved widgets are hidden at first
  const auto* box = qobject_cast<const QBoxLayout*>(contents);
  QLayout* buttons = TakeButtons(*contents, ending);
  const bool beside = box != nullptr && box->direction() == QBoxLayout::LeftToRight &&
                      qobject_cast<const QVBoxLayout*>(buttons) != nullptr;

  auto* inner = new QWidget(&window);
  const QMargins margins = contents->contentsMargins();
  inner->setLayout(contents);
  contents->setSizeConstraint(QLayout::SetDefaultConstraint);
  contents->setContentsMargins(0, 0, 0, 0);
  // Removes the limits that a form with a fixed size has set.
  window.setMinimumSize(0, 0);
  window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);

  auto* outer = new QBoxLayout(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, &window);
  outer->setContentsMargins(margins);
  outer->setSpacing(contents->spacing());
  QScrollArea* view = MakeView(window, inner);
  outer->addWidget(view, 1);
  if (buttons != nullptr) outer->addLayout(buttons);

  const int bar = view->verticalScrollBar()->sizeHint().width();
  window.resize((needed + QSize(bar, bar)).expandedTo(window.size()));
}

}  // namespace pelmar
