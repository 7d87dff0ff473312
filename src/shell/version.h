// The version as the program writes it. A macro, so that it can be joined with string literals. The forms o.ui and
// start.ui, the help data/pelmar.txt and CMakeLists.txt repeat the number.
#pragma once

#define PELMAR_VERSION "8.9.2.1b CZ"
