// Texts and an encoding check of the internal browser. Texts are UTF-8.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace pelmar {

// The first web page of a browser that runs without the editor.
inline constexpr std::string_view kStartingAddress = "https://duckduckgo.com/";

// The progress of a web page in percent, "" if nothing loads.
std::string ProgressText(std::int64_t progress, std::int64_t maximum);

// Whether a web page is in UTF-8 without a declaration. The browser shows such a page as Windows-1250, with wrong
// letters.
bool IsUndeclaredUtf8(std::string_view page);

// The title of the browser's window, which contains the name of the web page.
std::string BrowserCaption(std::string_view location_name);

}  // namespace pelmar
