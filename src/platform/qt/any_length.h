// The toolkit's single-line fields cut each text at 32,767 characters without a word, unless they are told otherwise.
#pragma once

#include <QLineEdit>
#include <limits>

namespace pelmar {

inline void TakeAnyLength(QLineEdit& field) { field.setMaxLength(std::numeric_limits<int>::max()); }

}  // namespace pelmar
