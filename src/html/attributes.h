// The pieces that every HTML-writing dialog builds its tags from. Texts are Windows-1250, written without escaping.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pelmar {

// A blank, the name, "=" and the value between double quotes.
std::string Attribute(std::string_view name, std::string_view value);
// Nothing where there is no value.
template <typename Text>
std::string Attribute(std::string_view name, const std::optional<Text>& value) {
  return value ? Attribute(name, std::string_view(*value)) : std::string();
}

// Text between double quotes.
std::string Quoted(std::string_view text);

// Each backslash as a slash.
std::string ForwardSlashes(std::string_view path);

// A path, as the system gives it, in a link of a document. Bytes are percent-encoded only where the link could not lead
// to the file otherwise: those of characters that Windows-1250 lacks, and those that are no UTF-8.
std::string LinkText(std::string_view path);

// How a tag names a file: by its URL, or with `relative` by the path as it stands, which is a bare name. Slashes only.
std::string FileAddress(std::string_view path, bool relative);

// Without the blanks at the left, or at both ends. Other white space stays.
std::string_view LeftTrimmed(std::string_view text);
std::string_view Trimmed(std::string_view text);

}  // namespace pelmar
