// Mends two faults of Qt's single-line fields: they silently cut a text at 32,767 characters, and they keep a lone LF
// of a text from another program.
#pragma once

#include <QLineEdit>
#include <limits>

namespace pelmar {

inline void TakeAnyLength(QLineEdit& field) { field.setMaxLength(std::numeric_limits<int>::max()); }

// A field with this dynamic property keeps the line breaks of a pasted or dropped text. Other fields remove them.
inline constexpr char kHoldsLines[] = "holdsLines";

// Call with each event of a field. Pastes and drops texts in place of Qt, and shows a menu whose "Paste" does the same.
// Returns true if Qt must not get the event.
bool TakePasted(QLineEdit& field, QEvent& event);

}  // namespace pelmar
