// Small routines that the whole program shares: path parts, file tests, colours, whole-text rewrites.
// Positions inside these routines count from 1, as their results are told to users. Paths are UTF-8, texts
// Windows-1250.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/draw.h"

namespace pelmar {

inline constexpr std::string_view kCrLf = "\r\n";
inline constexpr std::string_view kQuote = "\"";

// A colour: red + 256 * green + 65536 * blue.
using Color = std::int32_t;
constexpr Color Rgb(int red, int green, int blue) { return red + 256 * green + 65536 * blue; }
constexpr int RedOf(Color color) { return color & 0xFF; }
constexpr int GreenOf(Color color) { return color >> 8 & 0xFF; }
constexpr int BlueOf(Color color) { return color >> 16 & 0xFF; }

// An error that a command didn't expect. Where nobody catches it, the program keeps the modified documents in a rescue
// file, tells the user and ends. The number is an errno.
class RuntimeError : public std::runtime_error {
 public:
  RuntimeError(int number, const std::string& text) : std::runtime_error(text), number_(number) {}
  [[nodiscard]] int Number() const { return number_; }

 private:
  int number_;
};

// Part 1 of a path is its folder with the closing separator, 2 the name without extension, 3 the extension; any other
// number gives "". Both "\" and "/" separate. Throws RuntimeError (EINVAL) for an empty path, and for part 2 of a path
// whose name holds no full stop.
std::string FilePart(std::string_view path, int part);

// False for a path whose name holds no full stop, as part 2 refuses it, and for an empty one.
bool HasExtension(std::string_view path);

// "file:///" and the path, each backslash as "/", nothing encoded. A native absolute path gets three slashes in all.
std::string PathToFileUrl(std::string_view path);

// The path that a "file://" URL of this computer names, percent-decoded; nothing for any other string.
std::optional<std::string> PathFromFileUrl(std::string_view url);

// Folder and name joined by the separator that the folder is written with, none added where it ends in one.
std::string JoinPath(std::string_view folder, std::string_view name);

// Two upper-case digits of a number from 0 to 255.
std::string HexByte(int value);

// "#RRGGBB", upper case.
std::string ColorToHex(Color color);

// Czech letters without their marks; letters of other languages stay.
std::string StripDiacritics(std::string_view text);

// Each character in upper or lower case as `draw` says, one draw each.
std::string RandomCase(std::string_view text, const Draw& draw);

// Replaces each exact occurrence of `find`, from the left. The search goes on one character behind the start of each
// replacement. required: the replacement's own later characters are read again, which callers rely on. Throws
// RuntimeError (EINVAL) where that would never end: an empty `find`, or a `with` that holds it behind its first
// character.
std::string ReplaceAllText(std::string_view text, std::string_view find, std::string_view with);

// How many characters of code 10 the text holds.
std::int32_t CountLineFeeds(std::string_view text);

// A number as the status bar writes it: a blank for the sign of a positive one, then the digits.
std::string NumberWithSignBlank(std::int64_t number);

}  // namespace pelmar
