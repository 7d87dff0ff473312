#include "platform/qt/textbox/text_box_menu.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "platform/qt/desktop/clipboard_text.h"
#include "platform/qt/textbox/text_box.h"

namespace pelmar {
namespace {

bool ClipboardHasText() {
  const QMimeData* mime = QGuiApplication::clipboard()->mimeData();
  return mime != nullptr && HasText(*mime);
}

}  // namespace

QMenu* BuildTextMenu(TextBox& box) {
  auto* menu = new QMenu(&box);
  const auto add = [&](const QString& caption, TextCommand command, bool enabled) {
    QAction* action = menu->addAction(caption, &box, [&box, command] { box.Do({command}); });
    action->setEnabled(enabled);
  };
  const TextBuffer& buffer = box.Buffer();
  const bool letters = box.StandardShortcuts();
  const auto keys = [&](const QString& caption, const char* usual, const char* other = nullptr) {
    return caption + u'\t' + QString::fromLatin1(letters || other == nullptr ? usual : other);
  };
  const QString copy = keys(QStringLiteral("&Kopírovat"), "Ctrl+C", "Ctrl+Ins");
  const QString all = keys(QStringLiteral("Vybrat vš&e"), "Ctrl+A", "");
  if (box.IsReadOnly()) {
    add(copy, TextCommand::kCopy, buffer.HasSelection());
    menu->addSeparator();
    add(all, TextCommand::kSelectAll, !buffer.Empty());
    return menu;
  }
  add(keys(QStringLiteral("&Zpět"), "Alt+Backspace"), TextCommand::kUndo, buffer.CanUndo());
  add(keys(QStringLiteral("Z&novu"), "Alt+Shift+Backspace"), TextCommand::kRedo, buffer.CanRedo());
  menu->addSeparator();
  add(keys(QStringLiteral("Vyj&mout"), "Ctrl+X", "Shift+Del"), TextCommand::kCut, buffer.HasSelection());
  add(copy, TextCommand::kCopy, buffer.HasSelection());
  add(keys(QStringLiteral("&Vložit"), "Ctrl+V", "Shift+Ins"), TextCommand::kPaste, ClipboardHasText());
  add(keys(QStringLiteral("&Smazat"), "Del"), TextCommand::kEraseAfter, buffer.HasSelection());
  menu->addSeparator();
  add(all, TextCommand::kSelectAll, !buffer.Empty());
  return menu;
}

}  // namespace pelmar
