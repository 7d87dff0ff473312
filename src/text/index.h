// Indexes of arrays and tables. They count from 0.
#pragma once

#include <cstddef>
#include <type_traits>

namespace pelmar {

// Of a character in a table of all 256.
constexpr std::size_t IndexOf(char ch) { return static_cast<unsigned char>(ch); }

// Of a choice in a table with a row for each.
template <typename Choice>
requires std::is_enum_v<Choice>
constexpr std::size_t IndexOf(Choice choice) { return static_cast<std::size_t>(choice); }

// Of a thing that people number from 1: a tab, a page, a panel.
constexpr std::size_t IndexFromOne(int number) { return static_cast<std::size_t>(number - 1); }

}  // namespace pelmar
