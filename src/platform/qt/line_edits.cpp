#include "platform/qt/line_edits.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMenu>

#include "platform/qt/desktop/clipboard_text.h"

namespace pelmar {
namespace {

// Marks a dropped text whose line breaks are already converted or removed.
class LineMime : public QMimeData {};

void Paste(QLineEdit& field, QClipboard::Mode mode) {
  const QMimeData* mime = QGuiApplication::clipboard()->mimeData(mode);
  if (mime == nullptr) return;
  const QString line = LineFromMime(*mime, field.property(kHoldsLines).toBool());
  if (!line.isEmpty()) field.insert(line);  // an empty text would erase the selection
}

void ShowMenu(QLineEdit& field, QPoint at) {
  QMenu* menu = field.createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (QAction* action : menu->actions()) {
    // The action for pasting has no object name, so its text identifies the action.
    if (!action->text().startsWith(QLineEdit::tr("&Paste"))) continue;
    action->disconnect(&field);
    QObject::connect(action, &QAction::triggered, &field, [&field] { Paste(field, QClipboard::Clipboard); });
  }
  menu->popup(at);
}

void Drop(QLineEdit& field, QDropEvent& event) {
  LineMime mime;
  mime.setText(LineFromMime(*event.mimeData(), field.property(kHoldsLines).toBool()));
  QDropEvent drop(event.position(), event.possibleActions(), &mime, event.buttons(), event.modifiers());
  drop.setDropAction(event.dropAction());
  field.event(&drop);
  event.setDropAction(drop.dropAction());
  event.setAccepted(drop.isAccepted());
}

}  // namespace

bool TakePasted(QLineEdit& field, QEvent& event) {
  if (event.type() == QEvent::ContextMenu) {
    ShowMenu(field, static_cast<QContextMenuEvent&>(event).globalPos());
    return true;
  }
  if (field.isReadOnly()) return false;
  if (event.type() == QEvent::KeyPress && static_cast<QKeyEvent&>(event).matches(QKeySequence::Paste)) {
    // Qt pastes the selection for Ctrl+Shift+Insert.
    const bool selection = static_cast<QKeyEvent&>(event).modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    Paste(field, selection ? QClipboard::Selection : QClipboard::Clipboard);
    return true;
  }
  if (event.type() == QEvent::MouseButtonRelease && static_cast<QMouseEvent&>(event).button() == Qt::MiddleButton) {
    field.deselect();
    Paste(field, QClipboard::Selection);
    return true;
  }
  if (event.type() != QEvent::Drop) return false;
  auto& drop = static_cast<QDropEvent&>(event);
  // Neither a text that is dragged within the field nor a text from Drop needs a conversion.
  if (drop.source() == &field || dynamic_cast<const LineMime*>(drop.mimeData())) return false;
  Drop(field, drop);
  return true;
}

}  // namespace pelmar
