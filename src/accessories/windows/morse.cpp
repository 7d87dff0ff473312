#include "accessories/windows/morse.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>

#include "accessories/morse.h"
#include "platform/qt/convert.h"
#include "text/insert.h"
#include "ui_morse.h"

namespace pelmar {

Morse::Morse(Platform& platform, QWidget* parent) : FormDialog(parent), platform_(platform) { AddMenus(); }

void Morse::AddMenus() {
  auto* bar = new QMenuBar(this);
  layout()->setMenuBar(bar);
  QMenu* text = AddMenu(bar, "mnu_Txt", "&Text");
  AddItem(text, "mnu_clipmorse", "Morse ze schránky", [this] { mnu_clipmorse_Click(); });
  AddItem(text, "mnuMakeMorse", "Vytvoř morseovku", [this] { mnuMakeMorse_Click(); });
  for (const MorseMenu& signs : MorseMenus()) {
    QMenu* menu = AddMenu(bar, signs.name, signs.caption);
    for (const MorseItem& item : signs.items)
      AddItem(menu, item.name, item.caption, [this, &item] { InsertAtCaret(ui_->Text1->Buffer(), item.sign); });
  }
}

QMenu* Morse::AddMenu(QMenuBar* bar, std::string_view name, std::string_view caption) {
  QMenu* menu = bar->addMenu(Utf8ToQString(caption));
  menu->menuAction()->setObjectName(Utf8ToQString(name));
  return menu;
}

void Morse::AddItem(QMenu* menu, std::string_view name, std::string_view caption, std::function<void()> run) {
  QAction* action = menu->addAction(Utf8ToQString(caption));
  action->setObjectName(Utf8ToQString(name));
  connect(action, &QAction::triggered, this, std::move(run));
}

void Morse::mnu_clipmorse_Click() { ui_->Text1->Buffer().ReplaceSelection(TextToMorse(platform_.ClipboardText())); }

void Morse::mnuMakeMorse_Click() {
  TextBuffer& buffer = ui_->Text1->Buffer();
  const BusyPointer busy(platform_, BusyLook::kArrow);
  buffer.ReplaceSelection(TextToMorse(buffer.SelText()));
}

// The box is read-only, so typed characters reach the window.
void Morse::keyPressEvent(QKeyEvent* event) {
  const std::string typed = TextFromQString(TypedText(*event));
  if (typed.empty()) return DialogWindow::keyPressEvent(event);
  const std::string sign = TextToMorse(typed);
  if (sign != typed) ui_->Text1->Buffer().ReplaceSelection(sign);
}

}  // namespace pelmar
