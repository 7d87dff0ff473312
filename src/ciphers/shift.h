// Moves the letters A to Z and a to z by a fixed number of places in the alphabet, and rotates a text. Other characters
// stay.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace pelmar {

inline constexpr int kLetters = 26;

// Whether the first character equals its upper-case form. Digits and signs do.
bool IsUpperChar(std::string_view ch);

// The place of a letter in the alphabet, from 1. 0 for all characters but A to Z and a to z.
int LetterNumber(char ch);

// The letter `shift` places after `letter`, in the same case. required: the alphabet repeats only once, so a large
// shift may give a character that is no letter.
char ShiftedLetter(char letter, int shift);

// Moves each letter forward by `shift`. A second move by 26 - shift restores the text.
std::string Shiftp(std::string_view text, std::int16_t shift);

// Moves the first `count` characters to the end. A text that is not longer than `count` stays.
std::string Rotated(std::string_view text, std::size_t count);

}  // namespace pelmar
