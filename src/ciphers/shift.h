// The shift of letters by a fixed number, which leaves all but A to Z and a to z alone, and the rotation of a text by
// whole characters.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace pelmar {

inline constexpr int kLetters = 26;

// Whether the first character is its own upper-case form; digits and marks are.
bool IsUpperChar(std::string_view ch);

// The place of a letter in the alphabet in either case, from 1; 0 for all but A to Z.
int LetterNumber(char ch);

// The letter that stands `shift` places behind one of A to Z, in its case. required: only one turn of the alphabet is
// taken back, so a result beyond it may be no letter.
char ShiftedLetter(char letter, int shift);

// Every letter moved forward by `shift`, all else as it stands. 26 - shift takes a shift of 0 to 26 back.
std::string Shiftp(std::string_view text, std::int16_t shift);

// The first `count` characters moved behind the others; as it stands where there are no more than that.
std::string Rotated(std::string_view text, std::size_t count);

}  // namespace pelmar
