#include "accessories/windows/klavesnice.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <map>

#include "platform/qt/convert.h"
#include "shell/common.h"
#include "text/codepage.h"
#include "text/insert.h"
#include "ui_klavesnice.h"

namespace pelmar {

Klavesnice::Klavesnice(TextBuffer& buffer, QWidget* parent) : FormDialog(parent), buffer_(buffer) {
  ConnectKeys();
  ConnectShift();
  // No key has the focus until the person presses Tab.
  setFocusPolicy(Qt::StrongFocus);
  setFocus();
  new KeyPreview(*this, [this](const QKeyEvent& event) { return PhysicalKey(event); });
}

void Klavesnice::ConnectKeys() {
  // In a button group, the arrow keys move the focus between the buttons by their position.
  auto* group = new QButtonGroup(this);
  group->setExclusive(false);
  group->addButton(ui_->Check1);
  group->addButton(ui_->Check2);
  const std::map<const KeyCap*, std::string_view> named = {
      {ui_->Command1, kCrLf}, {ui_->Command51, kCrLf}, {ui_->Command2, "\t"}, {ui_->Command29, " "}};
  const QList<KeyCap*> keys = findChildren<KeyCap*>();
  for (KeyCap* key : keys) {
    group->addButton(key);
    if (key == ui_->Command50) continue;
    if (const auto found = named.find(key); found != named.end()) {
      connect(key, &KeyCap::clicked, this, [this, text = found->second] { InsertAtCaret(buffer_, text); });
    } else {
      connect(key, &KeyCap::clicked, this,
              [this, key] { InsertAtCaret(buffer_, Shifted(TextFromQString(key->text()))); });
    }
  }
  connect(ui_->Command50, &KeyCap::clicked, this, &Klavesnice::hide);
}

void Klavesnice::ConnectShift() {
  connect(ui_->Check1, &QCheckBox::toggled, ui_->Check2, &QCheckBox::setChecked);
  connect(ui_->Check2, &QCheckBox::toggled, ui_->Check1, &QCheckBox::setChecked);
}

// Signs and digits have no upper case, so Shift doesn't change them.
std::string Klavesnice::Shifted(const std::string& text) const {
  return ui_->Check1->isChecked() ? ToUpper(text) : text;
}

Preview Klavesnice::PhysicalKey(const QKeyEvent& event) {
  const auto character = TypedCharacter(event);
  if (!character) return Preview::kPass;
  // If a button of this window has the focus, the space bar presses the button.
  if (*character == ' ' && focusWidget() != this) return Preview::kPass;
  // required: control characters are inserted too, so Enter inserts only the character 13
  InsertAtCaret(buffer_, Shifted(std::string(1, *character)));
  setFocus();
  return Preview::kTake;
}

}  // namespace pelmar
