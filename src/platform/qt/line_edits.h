// What the toolkit's single-line fields get wrong: they cut each text at 32,767 characters without a word, and put the
// lone LF of other programs into it.
#pragma once

#include <QLineEdit>
#include <limits>

namespace pelmar {

inline void TakeAnyLength(QLineEdit& field) { field.setMaxLength(std::numeric_limits<int>::max()); }

// A dynamic property. The line breaks of a pasted or dropped text stay in a field that has it, in others they go.
inline constexpr char kHoldsLines[] = "holdsLines";

// Each event of a field has to come here first. Where it pastes or drops a text, the field gets it with the line breaks
// of a document, and the result is true: the toolkit must not see the event.
bool TakePasted(QLineEdit& field, QEvent& event);

}  // namespace pelmar
