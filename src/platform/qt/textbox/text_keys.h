// Which key means what in a text box. A table, so that the whole keyboard can be read at one place.
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
  CaretMove move = CaretMove::kLeft;  // of kMove
  bool select = false;                // of kMove
};

// With `standard_shortcuts` false Ctrl with a letter means nothing here: a menu owns such keys.
std::optional<TextKey> TextKeyOf(const QKeyEvent& event, bool standard_shortcuts);

// The characters that a key types, empty for a key that types none.
QString TypedText(const QKeyEvent& event);

bool ChangesText(TextCommand command);

}  // namespace pelmar
