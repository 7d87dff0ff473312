#include "platform/qt/textbox/text_keys.h"

namespace pelmar {
namespace {

struct MoveKey {
  int key;
  bool ctrl;
  CaretMove move;
};

constexpr MoveKey kMoveKeys[] = {
    {Qt::Key_Left, false, CaretMove::kLeft},     {Qt::Key_Left, true, CaretMove::kWordLeft},
    {Qt::Key_Right, false, CaretMove::kRight},   {Qt::Key_Right, true, CaretMove::kWordRight},
    {Qt::Key_Home, false, CaretMove::kRowStart}, {Qt::Key_Home, true, CaretMove::kTextStart},
    {Qt::Key_End, false, CaretMove::kRowEnd},    {Qt::Key_End, true, CaretMove::kTextEnd},
    {Qt::Key_Up, false, CaretMove::kUp},         {Qt::Key_Down, false, CaretMove::kDown},
    {Qt::Key_PageUp, false, CaretMove::kPageUp}, {Qt::Key_PageDown, false, CaretMove::kPageDown},
};

struct CommandKey {
  int key;
  Qt::KeyboardModifiers modifiers;
  TextCommand command;
};

const CommandKey kCommandKeys[] = {
    {Qt::Key_Return, Qt::NoModifier, TextCommand::kNewLine},
    {Qt::Key_Return, Qt::ShiftModifier, TextCommand::kNewLine},
    {Qt::Key_Enter, Qt::NoModifier, TextCommand::kNewLine},
    {Qt::Key_Enter, Qt::ShiftModifier, TextCommand::kNewLine},
    {Qt::Key_Backspace, Qt::NoModifier, TextCommand::kEraseBefore},
    {Qt::Key_Backspace, Qt::ShiftModifier, TextCommand::kEraseBefore},
    {Qt::Key_Backspace, Qt::ControlModifier, TextCommand::kEraseWordBefore},
    {Qt::Key_Backspace, Qt::AltModifier, TextCommand::kUndo},
    {Qt::Key_Backspace, Qt::AltModifier | Qt::ShiftModifier, TextCommand::kRedo},
    {Qt::Key_Delete, Qt::NoModifier, TextCommand::kEraseAfter},
    {Qt::Key_Delete, Qt::ControlModifier, TextCommand::kEraseWordAfter},
    {Qt::Key_Delete, Qt::ShiftModifier, TextCommand::kCut},
    {Qt::Key_Insert, Qt::ControlModifier, TextCommand::kCopy},
    {Qt::Key_Insert, Qt::ShiftModifier, TextCommand::kPaste},
    {Qt::Key_Up, Qt::ControlModifier, TextCommand::kScrollUp},
    {Qt::Key_Down, Qt::ControlModifier, TextCommand::kScrollDown},
    {Qt::Key_Cut, Qt::NoModifier, TextCommand::kCut},
    {Qt::Key_Copy, Qt::NoModifier, TextCommand::kCopy},
    {Qt::Key_Paste, Qt::NoModifier, TextCommand::kPaste},
    {Qt::Key_Undo, Qt::NoModifier, TextCommand::kUndo},
    {Qt::Key_Redo, Qt::NoModifier, TextCommand::kRedo},
};

const CommandKey kStandardKeys[] = {
    {Qt::Key_C, Qt::ControlModifier, TextCommand::kCopy},
    {Qt::Key_X, Qt::ControlModifier, TextCommand::kCut},
    {Qt::Key_V, Qt::ControlModifier, TextCommand::kPaste},
    {Qt::Key_A, Qt::ControlModifier, TextCommand::kSelectAll},
    {Qt::Key_Z, Qt::ControlModifier, TextCommand::kUndo},
    {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier, TextCommand::kRedo},
    {Qt::Key_Y, Qt::ControlModifier, TextCommand::kRedo},
};

template <std::size_t N>
std::optional<TextKey> Find(const CommandKey (&keys)[N], int key, Qt::KeyboardModifiers modifiers) {
  for (const CommandKey& known : keys)
    if (known.key == key && known.modifiers == modifiers) return TextKey{known.command};
  return std::nullopt;
}

}  // namespace

std::optional<TextKey> TextKeyOf(const QKeyEvent& event, bool standard_shortcuts) {
  const Qt::KeyboardModifiers modifiers = event.modifiers() & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier);
  if (const auto key = Find(kCommandKeys, event.key(), modifiers)) return key;
  if (standard_shortcuts)
    if (const auto key = Find(kStandardKeys, event.key(), modifiers)) return key;
  const Qt::KeyboardModifiers others = modifiers & ~(Qt::ShiftModifier | Qt::ControlModifier);
  if (others != Qt::NoModifier) return std::nullopt;
  for (const MoveKey& known : kMoveKeys)
    if (known.key == event.key() && known.ctrl == modifiers.testFlag(Qt::ControlModifier))
      return TextKey{TextCommand::kMove, known.move, modifiers.testFlag(Qt::ShiftModifier)};
  return std::nullopt;
}

QString TypedText(const QKeyEvent& event) {
  QString text = event.text();
  const bool ctrl = event.modifiers().testFlag(Qt::ControlModifier);
  const bool alt = event.modifiers().testFlag(Qt::AltModifier);
  // A key with either Ctrl or Alt types nothing. A key with both may type, since Ctrl+Alt replaces AltGr on keyboards
  // without AltGr.
  if (text.isEmpty() || ctrl != alt || event.modifiers().testFlag(Qt::MetaModifier)) return {};
  if (text == QStringLiteral("\t") && !ctrl) return text;
  return text[0].isPrint() || text[0].isSurrogate() ? text : QString();
}

bool ChangesText(TextCommand command) {
  switch (command) {
    case TextCommand::kMove:
    case TextCommand::kCopy:
    case TextCommand::kSelectAll:
    case TextCommand::kScrollUp:
    case TextCommand::kScrollDown:
      return false;
    default:
      return true;
  }
}

}  // namespace pelmar
