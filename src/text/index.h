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

// The index of a tab, a page or a panel, which people number from 1.
constexpr std::size_t IndexFromOne(int number) { return static_cast<std::size_t>(number - 1); }

}  // namespace pelmar
