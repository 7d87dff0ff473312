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
  // Qt scrolls only after the Tab key, not after Enter or an access key. A click doesn't scroll, since the clicked
  // button would move away from the pointer.
  QObject::connect(qApp, &QApplication::focusChanged, view, [view](QWidget*, QWidget* now) {
    if (view->isAncestorOf(now) && QGuiApplication::mouseButtons() == Qt::NoButton) view->ensureWidgetVisible(now);
  });
  auto* outer = new QVBoxLayout(&window);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->addWidget(view);

  const int bar = view->verticalScrollBar()->sizeHint().width();
  window.resize((needed + QSize(bar, bar)).expandedTo(window.size()));
}

}  // namespace pelmar
