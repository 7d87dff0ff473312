#include "platform/qt/controls/scrolled_contents.h"

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace pelmar {

void ScrollContents(QWidget& window) {
  QLayout* contents = window.layout();
  const QSize needed = contents->totalMinimumSize();  // before the move, since moved widgets are hidden at first

  auto* inner = new QWidget(&window);
  inner->setLayout(contents);
  contents->setSizeConstraint(QLayout::SetDefaultConstraint);
  // Removes the limits that a form with a fixed size has set.
  window.setMinimumSize(0, 0);
  window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);

  auto* view = new QScrollArea(&window);
  view->setFrameShape(QFrame::NoFrame);
  view->setFocusPolicy(Qt::NoFocus);  // the Tab key reaches the widgets inside
  view->setWidgetResizable(true);
  view->setWidget(inner);
  // Qt scrolls only after the Tab key, not after Enter or an access key. A click and an activation of the window don't
  // scroll, since the control under the pointer would move away before the button is pressed.
  QObject::connect(qApp, &QApplication::focusChanged, view, [view](QWidget* old, QWidget* now) {
    const bool moves_inside = view->isAncestorOf(old) && view->isAncestorOf(now);
    if (moves_inside && QGuiApplication::mouseButtons() == Qt::NoButton) view->ensureWidgetVisible(now);
  });
  auto* outer = new QVBoxLayout(&window);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->addWidget(view);

  const int bar = view->verticalScrollBar()->sizeHint().width();
  window.resize((needed + QSize(bar, bar)).expandedTo(window.size()));
}

}  // namespace pelmar
