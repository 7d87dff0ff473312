#include "accessories/windows/tool_windows.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include "accessories/windows/klavesnice.h"
#include "accessories/windows/kod.h"
#include "accessories/windows/morse.h"
#include "shell/windows/program_parts.h"

namespace pelmar {
namespace {

// A key stroke for the text of the main window, handled when this returns. The keyboard stays where it is: to hand the
// activation there and back would make both windows flicker at each key.
void Stroke(MainWindow& main, const QKeyEvent& key) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent stroke(type, key.key(), key.modifiers(), key.text());
    QCoreApplication::sendEvent(&main.Text(), &stroke);
  }
}

}  // namespace

void AddToolWindows(const ProgramParts& parts) {
  TextBuffer& text = parts.editor.text;
  parts.windows.Register<Morse>([parts] { return std::make_unique<Morse>(parts.platform, &parts.main); });
  parts.windows.Register<Klavesnice>([parts, &text] { return std::make_unique<Klavesnice>(text, &parts.main); });
  parts.windows.Register<Kod>([parts, &text] {
    return std::make_unique<Kod>(
        text, [&main = parts.main](const QKeyEvent& key) { Stroke(main, key); }, &parts.main);
  });
  parts.ShowBy<Morse>({"mnumorse"});
  parts.ShowBy<Kod>({"mnuASCII"});
  parts.ShowBy<Klavesnice>({"mnuklavesnice"});
}

}  // namespace pelmar
