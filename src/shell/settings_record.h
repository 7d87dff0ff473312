// The settings that "pelmar.ini" stores. The file holds the fields one after the other, without signature or padding.
// Numbers are little-endian. A boolean has 16 bits and is stored as 0 or -1. A string is a 16-bit byte count and that
// many bytes. Texts are Windows-1250. RecentFiles are paths, which the file stores in the form of StoredPath.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/color.h"

namespace pelmar {

// The initial AutosnapDistance in twips. Also replaces a 0 from the settings file. A window snaps to an edge of the
// screen that is nearer than AutosnapDistance.
inline constexpr std::int32_t kDefaultAutosnapDistance = 240;

// The fields of SettingsRecord and TabFace, and three fields of DocSlot, begin with a capital letter. The fields of all
// other structs begin with a small letter.
struct SettingsRecord {
  std::int32_t Width = 0;  // outer size and place of the main window, twips
  std::int32_t Height = 0;
  std::int32_t Top = 0;
  std::int32_t Left = 0;
  bool AlwaysOnTopFlag = false;
  std::string FontName;
  Color ForeColor = 0;
  Color BackColor = 0;
  std::uint8_t FontSize = 0;  // points
  bool FontBold = false;
  bool FontItalic = false;
  std::string UserName;
  std::string UserEmail;
  bool ShowStart = false;
  std::int32_t AutosnapDistance = 0;  // twips
  std::string LockPassword;
  std::array<std::string, 10> RecentFiles;  // newest first
  std::int32_t WindowState = 0;             // a WindowMode
  bool LineCounting = false;

  bool operator==(const SettingsRecord&) const = default;
};

// Reads the record from the start of the bytes. A field beyond the end of the bytes reads as zero or empty.
SettingsRecord ReadSettings(std::string_view bytes);

// The record's bytes. A string longer than 65,535 bytes is cut.
std::string SettingsBytes(const SettingsRecord& record);

// Sets the font name if it is empty. Sets black on white if text and background have the same colour.
void ApplySettingsDefaults(SettingsRecord& record);

}  // namespace pelmar
