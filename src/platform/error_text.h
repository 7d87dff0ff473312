// Says in Czech what an errno means. The system's own texts are often in English.
#pragma once

#include <string>

namespace pelmar {

// UTF-8, in lower case and without a full stop, for the end of a message. An errno without a Czech text gives "chyba
// číslo" and its number.
std::string ErrorText(int number);

}  // namespace pelmar
