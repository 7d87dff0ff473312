// Mends two faults of Qt's single-line fields: they silently cut a text at 32,767 characters, and they keep the lone LF
// of a text from other programs.
#pragma once

#include <QLineEdit>
#include <limits>

namespace pelmar {

inline void TakeAnyLength(QLineEdit& field) { field.setMaxLength(std::numeric_limits<int>::max()); }

// A dynamic property of a field. The field keeps the line breaks of a pasted or dropped text; other fields remove them.
inline constexpr char kHoldsLines[] = "holdsLines";

// Call with each event of a field. If the event pastes or drops a text, inserts the text with CR LF line breaks and
// returns true: Qt must not get the event.
bool TakePasted(QLineEdit& field, QEvent& event);

}  // namespace pelmar
