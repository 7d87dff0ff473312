// The sample documents. For each document there is a function that builds the text line by line. Html1 and Diz1 contain
// the person's e-mail address, Diz1 also the name. The texts are Windows-1250, and CR LF separates the lines.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "shell/settings_record.h"

namespace pelmar {

struct Sample {
  std::string_view key;
  std::string_view text;       // the name in the list, Windows-1250
  std::string_view file_name;  // only displayed
  std::string_view picture;    // the name of an icon of the program
  std::string (*make)(const SettingsRecord& profile);
};

// All samples, in the order of the list.
std::span<const Sample> Samples();

// The text of a sample, "" for an unknown key.
std::string SampleText(std::string_view key, const SettingsRecord& profile);

namespace samples {

std::string Html1(const SettingsRecord& profile);  // plain home page
std::string Html2(const SettingsRecord& profile);  // dark page with a listing
std::string Html3(const SettingsRecord& profile);  // page with previous and next links
std::string Html4(const SettingsRecord& profile);  // page laid out by tables
std::string Html5(const SettingsRecord& profile);  // page with a script
std::string Ini1(const SettingsRecord& profile);   // settings of a CAD program
std::string Ini2(const SettingsRecord& profile);   // settings of a mail program's toolbars
std::string Inf1(const SettingsRecord& profile);   // CD autorun file
std::string Bat1(const SettingsRecord& profile);   // DOS start-up batch
std::string Bat2(const SettingsRecord& profile);   // clean-up batch
std::string Diz1(const SettingsRecord& profile);   // description for a download archive

}  // namespace samples
}  // namespace pelmar
