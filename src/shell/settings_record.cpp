#include "shell/settings_record.h"

#include <algorithm>
#include <cstddef>

#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr std::size_t kLongestString = 65535;

// Reads fields in file order. Once the bytes run out, everything that follows is zero and empty.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : rest_(bytes) {}

  std::uint32_t Number(std::size_t size) {
    const std::string_view field = Take(size);
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < field.size(); ++i) value |= static_cast<std::uint32_t>(CodeOf(field[i])) << 8 * i;
    return value;
  }
  void Read(std::int32_t& value) { value = static_cast<std::int32_t>(Number(4)); }
  void Read(std::uint8_t& value) { value = static_cast<std::uint8_t>(Number(1)); }
  void Read(bool& value) { value = Number(2) != 0; }
  void Read(std::string& value) {
    const std::size_t count = Number(2);
    value = Take(count);
  }

 private:
  std::string_view Take(std::size_t size) {
    if (size > rest_.size()) {
      rest_ = {};
      return {};
    }
    const std::string_view field = rest_.substr(0, size);
    rest_.remove_prefix(size);
    return field;
  }

  std::string_view rest_;
};

class Writer {
 public:
  void Number(std::uint32_t value, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) bytes_ += CharOf(static_cast<int>(value >> 8 * i & 0xFF));
  }
  void Write(std::int32_t value) { Number(static_cast<std::uint32_t>(value), 4); }
  void Write(std::uint8_t value) { Number(value, 1); }
  void Write(bool value) { Number(value ? 0xFFFF : 0, 2); }
  void Write(std::string_view value) {
    value = value.substr(0, kLongestString);
    Number(static_cast<std::uint32_t>(value.size()), 2);
    bytes_ += value;
  }
  std::string Bytes() && { return std::move(bytes_); }

 private:
  std::string bytes_;
};

}  // namespace

SettingsRecord ReadSettings(std::string_view bytes) {
  SettingsRecord r;
  Reader reader(bytes);
  reader.Read(r.Width);
  reader.Read(r.Height);
  reader.Read(r.Top);
  reader.Read(r.Left);
  reader.Read(r.AlwaysOnTopFlag);
  reader.Read(r.FontName);
  reader.Read(r.ForeColor);
  reader.Read(r.BackColor);
  reader.Read(r.FontSize);
  reader.Read(r.FontBold);
  reader.Read(r.FontItalic);
  reader.Read(r.UserName);
  reader.Read(r.UserEmail);
  reader.Read(r.ShowStart);
  reader.Read(r.AutosnapDistance);
  reader.Read(r.LockPassword);
  for (std::string& path : r.RecentFiles) {
    reader.Read(path);
    path = PathFromStored(path);
  }
  reader.Read(r.WindowState);
  reader.Read(r.LineCounting);
  return r;
}

std::string SettingsBytes(const SettingsRecord& r) {
  Writer writer;
  writer.Write(r.Width);
  writer.Write(r.Height);
  writer.Write(r.Top);
  writer.Write(r.Left);
  writer.Write(r.AlwaysOnTopFlag);
  writer.Write(r.FontName);
  writer.Write(r.ForeColor);
  writer.Write(r.BackColor);
  writer.Write(r.FontSize);
  writer.Write(r.FontBold);
  writer.Write(r.FontItalic);
  writer.Write(r.UserName);
  writer.Write(r.UserEmail);
  writer.Write(r.ShowStart);
  writer.Write(r.AutosnapDistance);
  writer.Write(r.LockPassword);
  for (const std::string& path : r.RecentFiles) writer.Write(StoredPath(path));
  writer.Write(r.WindowState);
  writer.Write(r.LineCounting);
  return std::move(writer).Bytes();
}

void ApplySettingsDefaults(SettingsRecord& record) {
  if (record.FontName.empty()) record.FontName = "Courier New";
  if (record.ForeColor == record.BackColor) {
    record.ForeColor = Rgb(0, 0, 0);
    record.BackColor = Rgb(255, 255, 255);
  }
}

std::string OverOldTail(std::string fresh, std::string_view old) {
  if (old.size() > fresh.size()) fresh += old.substr(fresh.size());
  return fresh;
}

std::string StoredPath(std::string_view path) {
  std::string text = FromUtf8(path);
  const bool lossless = ToUtf8(text) == path;
  const bool ambiguous = IsUtf8(text) && text != path;
  return lossless && !ambiguous ? text : std::string(path);
}

std::string PathFromStored(std::string_view bytes) { return IsUtf8(bytes) ? std::string(bytes) : ToUtf8(bytes); }

}  // namespace pelmar
