// Mends two faults of Qt's single-line fields. These fields silently cut a text at 32,767 characters. They also keep
// every line break of a pasted or dropped text, even a lone LF from another program.
#pragma once

#include <QLineEdit>
#include <limits>

namespace pelmar {

inline void TakeAnyLength(QLineEdit& field) { field.setMaxLength(std::numeric_limits<int>::max()); }

// If this dynamic property is true, the field keeps the line breaks of a pasted or dropped text. A lone LF from another
// program becomes CR LF. Other fields remove the line breaks.
inline constexpr char kHoldsLines[] = "holdsLines";

// Call with each event of a field. Handles pasting, dropping and the context menu in place of Qt. Returns true if Qt
// must not get the event.
bool TakePasted(QLineEdit& field, QEvent& event);

}  // namespace pelmar
