#include "shell/settings_record.h"

#include "platform/paths.h"
#include "shell/record_bytes.h"

namespace pelmar {
namespace {

class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {}

  void Field(std::int32_t& value) { value = static_cast<std::int32_t>(bytes_.Number(4)); }
  void Field(std::uint8_t& value) { value = static_cast<std::uint8_t>(bytes_.Number(1)); }
  void Field(bool& value) { value = bytes_.Number(2) != 0; }
  void Field(std::string& value) { value = bytes_.String(2); }
  void Path(std::string& path) { path = PathFromStored(bytes_.String(2)); }

 private:
  RecordReader bytes_;
};

class Writer {
 public:
  void Field(std::int32_t value) { bytes_.Number(static_cast<std::uint32_t>(value), 4); }
  void Field(std::uint8_t value) { bytes_.Number(value, 1); }
  void Field(bool value) { bytes_.Number(value ? 0xFFFF : 0, 2); }
  void Field(std::string_view value) { bytes_.String(value, 2); }
  void Path(std::string_view path) { bytes_.String(StoredPath(path), 2); }
  std::string Bytes() && { return std::move(bytes_).Take(); }

 private:
  RecordWriter bytes_;
};

// Passes all fields to a Reader or a Writer, in the order of the stored format.
template <class Record, class Stored>
void ForEachField(Record& record, Stored& stored) {
  stored.Field(record.Width);
  stored.Field(record.Height);
  stored.Field(record.Top);
  stored.Field(record.Left);
  stored.Field(record.AlwaysOnTopFlag);
  stored.Field(record.FontName);
  stored.Field(record.ForeColor);
  stored.Field(record.BackColor);
  stored.Field(record.FontSize);
  stored.Field(record.FontBold);
  stored.Field(record.FontItalic);
  stored.Field(record.UserName);
  stored.Field(record.UserEmail);
  stored.Field(record.ShowStart);
  stored.Field(record.AutosnapDistance);
  stored.Field(record.LockPassword);
  for (auto& path : record.RecentFiles) stored.Path(path);
  stored.Field(record.WindowState);
  stored.Field(record.LineCounting);
}

}  // namespace

SettingsRecord ReadSettings(std::string_view bytes) {
  SettingsRecord record;
  Reader reader(bytes);
  ForEachField(record, reader);
  return record;
}

std::string SettingsBytes(const SettingsRecord& record) {
  Writer writer;
  ForEachField(record, writer);
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
