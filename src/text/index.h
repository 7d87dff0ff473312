// Indexes of arrays and tables. They count from 0.
#pragma once

#include <cstddef>
#include <type_traits>

namespace pelmar {

// The index of a character in a table of all 256 characters.
constexpr std::size_t IndexOf(char ch) { return static_cast<unsigned char>(ch); }

// The index of an enumerator in a table with a row for each enumerator.
template <typename Choice>
requires std::is_enum_v<Choice>
constexpr std::size_t IndexOf(Choice choice) { return static_cast<std::size_t>(choice); }

// The index of an element that is numbered from 1, such as a tab or a page.
constexpr std::size_t IndexFromOne(int number) { return static_cast<std::size_t>(number - 1); }

}  // namespace pelmar
