// Moves the letters A to Z and a to z by a fixed number of places in the alphabet. Other characters stay. Also rotates
// a text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace pelmar {

inline constexpr int kLetters = 26;

// True if the first character equals its upper-case form, as digits and signs do. True for an empty text.
bool IsUpperChar(std::string_view ch);

// The place of a letter from A to Z or a to z in the alphabet, 1 to 26. Other characters give 0.
int LetterNumber(char ch);

// The letter `shift` places after `letter`, in the same case. required: the alphabet repeats only once, so a shift
// above 26 or below 0 may give a character that is no letter.
char ShiftedLetter(char letter, int shift);

// Moves each letter forward by `shift`. If `shift` is 0 to 26, a second move by 26 - shift restores the text.
std::string Shiftp(std::string_view text, std::int16_t shift);

// Moves the first `count` characters to the end. A text that is not longer than `count` stays.
std::string Rotated(std::string_view text, std::size_t count);

}  // namespace pelmar
