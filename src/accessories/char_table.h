// How the character table `kod` writes a code, 0 to 255.
#pragma once

#include <string>

namespace pelmar {

// Upper case, with a "0" before a single digit.
std::string CodeInHex(int code);

// "&#", the code in plain decimal, ";".
std::string CharReference(int code);

}  // namespace pelmar
