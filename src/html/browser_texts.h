// What the internal browser's window says that isn't a caption of its form. UTF-8.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace pelmar {

// The page that a browser which is the whole program starts with.
inline constexpr std::string_view kStartingAddress = "https://duckduckgo.com/";

// How far a page is, in percent, "" where there is nothing to load.
std::string ProgressText(std::int64_t progress, std::int64_t maximum);

// Whether a page is in UTF-8 and doesn't say so: it is shown as Windows-1250 then, with garbage in it.
bool IsUndeclaredUtf8(std::string_view page);

// The window's title for a page of this name.
std::string BrowserCaption(std::string_view location_name);

}  // namespace pelmar
