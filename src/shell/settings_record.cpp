#include "shell/settings_record.h"

#include "platform/paths.h"
#include "shell/record_bytes.h"

namespace pelmar {
namespace {

class Reader {
 public:
  explicit Reader(std::string_view bytes) : fields_(bytes) {}

  void Read(std::int32_t& value) { value = static_cast<std::int32_t>(fields_.Number(4)); }
  void Read(std::uint8_t& value) { value = static_cast<std::uint8_t>(fields_.Number(1)); }
  void Read(bool& value) { value = fields_.Number(2) != 0; }
  void Read(std::string& value) { value = fields_.String(2); }

 private:
  RecordReader fields_;
};

class Writer {
 public:
  void Write(std::int32_t value) { fields_.Number(static_cast<std::uint32_t>(value), 4); }
  void Write(std::uint8_t value) { fields_.Number(value, 1); }
  void Write(bool value) { fields_.Number(value ? 0xFFFF : 0, 2); }
  void Write(std::string_view value) { fields_.String(value, 2); }
  std::string Bytes() && { return std::move(fields_).Take(); }

 private:
  RecordWriter fields_;
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

}  // namespace pelmar
