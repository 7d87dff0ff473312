// The keys of a text box.
#pragma once

#include <QKeyEvent>
#include <optional>

#include "text/caret_mover.h"

namespace pelmar {

enum class TextCommand : std::uint8_t {
  kMove,
  kNewLine,
  kEraseBefore,
  kEraseAfter,
  kEraseWordBefore,
  kEraseWordAfter,
  kUndo,
  kRedo,
  kCut,
  kCopy,
  kPaste,
  kSelectAll,
  kScrollUp,
  kScrollDown,
};

struct TextKey {
  TextCommand command = TextCommand::kMove;
  CaretMove move = CaretMove::kLeft;  // only for kMove
  bool select = false;                // only for kMove
};

// The command of a key, if any. Without `standard_shortcuts`, Ctrl with a letter has no command, since a menu handles
// these keys.
std::optional<TextKey> TextKeyOf(const QKeyEvent& event, bool standard_shortcuts);

// The characters that a key types, or "".
QString TypedText(const QKeyEvent& event);

bool ChangesText(TextCommand command);

}  // namespace pelmar
