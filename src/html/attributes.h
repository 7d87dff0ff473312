// Pieces of HTML tags that several dialogs write. Texts are Windows-1250 and are not escaped.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pelmar {

// For example ` ALT="text"`, with the leading blank.
std::string Attribute(std::string_view name, std::string_view value);
// The same, but "" for nullopt.
template <typename Text>
std::string Attribute(std::string_view name, const std::optional<Text>& value) {
  return value ? Attribute(name, std::string_view(*value)) : std::string();
}

// The text with a double quote added at each end.
std::string Quoted(std::string_view text);

// The path with a slash for each backslash.
std::string ForwardSlashes(std::string_view path);

// Converts a UTF-8 path to Windows-1250 for a link. Characters outside Windows-1250 and bytes that are not UTF-8 are
// percent-encoded. With a "?" in their place the link would not lead to the file.
std::string LinkText(std::string_view path);

// The address of a file in a tag: the URL of the path, or the path itself if `relative`. Backslashes become slashes.
std::string FileAddress(std::string_view path, bool relative);

// The text without the blanks at its start. Other white space stays.
std::string_view LeftTrimmed(std::string_view text);
// The text without the blanks at its start and its end. Other white space stays.
std::string_view Trimmed(std::string_view text);

}  // namespace pelmar
