// Converts the line ends of a file on disk to LF or to CR LF. The conversion looks only for the bytes CR and LF, so the
// code page doesn't matter. A file is converted in memory and can be of any size that fits there.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"

namespace pelmar {

// CR LF, CR and LF each end a line. Each line is written with LF at its end, the last one too.
std::string ToLineFeeds(std::string text);

// Writes a CR before each LF, even after a CR: CR LF becomes CR CR LF. required: text after the last LF is lost.
std::string ToCrLf(std::string_view text);

inline constexpr std::string_view kConversionTitle = "Konverze UNIX <-> DOS";

// Whether the target is the source file. If so, a message tells the person.
bool IsOwnSource(Platform& platform, const std::string& path, const std::string& target);

// The path of the converted file. required: the path is cut after its first ".", even in the name of a folder. For a
// path without ".", the result is only the extension, so the converted file lies in the current folder.
std::string ConvertedPath(std::string_view path, std::string_view extension);

// Convert a file into the file of ConvertedPath with the extension "unx" or "dos". An old target is overwritten without
// a question. If the target is the source file, a message says so and nothing is written. Throw RuntimeError if reading
// or writing fails.
void ConvertToUnix(Platform& platform, const std::string& path);  // required: a longer old target keeps its tail
void ConvertToDos(Platform& platform, const std::string& path);

}  // namespace pelmar
