// Edits a text at random. The buffer must equal a plain string, undo and redo must reverse each other, and the updated
// layout must equal a new one. Three bytes of the input are one step.
#include <cstdint>
#include <string>
#include <string_view>

#include "checks.h"
#include "text/text_buffer.h"
#include "text/text_layout.h"

namespace pelmar {
namespace {

// The inserted pieces: whole and half line ends, blanks, tabs, and words that wrap.
constexpr std::string_view kPieces[] = {
    "a", " ", "\t", "\r\n", "\r", "\n", "word ", "\xA0", "a long word and more\r\n"};
constexpr std::size_t kLongest = 4000;  // bytes; longer texts only cost time

LayoutRules Rules() {
  LayoutRules rules;
  for (std::size_t code = 0; code < 256; ++code)
    rules.advances.of[code] = static_cast<std::int32_t>(300 + code * 7 % 411);
  rules.advances.tab_stop = 8 * rules.advances.of[' '];
  rules.width = 60 * kUnitsPerPixel;
  return rules;
}

class Box {
 public:
  Box() : rules_(Rules()) {
    layout_.Lay(rules_);
    heard_ = buffer_.OnChange([this](const TextChange& change) { Follow(change); });
  }

  void Step(unsigned act, unsigned a, unsigned b) {
    const std::size_t size = plain_.size();
    const std::size_t pos = a * 16 % (size + 1), length = b % (size - pos + 1);
    const std::string_view piece = kPieces[b % std::size(kPieces)];
    switch (act % 8) {
      case 0:
        return buffer_.Select(pos, pos + length);
      case 1:
        return Write(piece, [&] { buffer_.Type(piece); });
      case 2:
        return Write(piece, [&] { buffer_.ReplaceSelection(piece); });
      case 3:
        return buffer_.EraseBefore(b % 3);
      case 4:
        return buffer_.EraseAfter(b % 3);
      case 5:
        return ThereAndBack(&TextBuffer::Undo, &TextBuffer::Redo, b);
      case 6:
        return ThereAndBack(&TextBuffer::Redo, &TextBuffer::Undo, b);
      default:
        buffer_.Replace(pos, length, piece);
    }
  }

  void Check() const {
    Require(buffer_.Text() == plain_);
    TextLayout fresh(buffer_);
    fresh.Lay(rules_);
    Require(fresh.RowCount() == layout_.RowCount());
    for (std::size_t row = 0; row < fresh.RowCount(); ++row) {
      Require(fresh.RowStart(row) == layout_.RowStart(row) && fresh.RowEnd(row) == layout_.RowEnd(row));
      Require(fresh.XOf(row, fresh.RowEnd(row)) == layout_.XOf(row, layout_.RowEnd(row)));
      Require(layout_.RowOf(layout_.RowStart(row)) == row);
    }
  }

  [[nodiscard]] bool IsFull() const { return plain_.size() > kLongest; }

 private:
  template <class Act>
  void Write(std::string_view piece, Act act) {
    std::string wanted = plain_;
    wanted.replace(buffer_.SelStart(), buffer_.SelLength(), piece);
    act();
    Require(plain_ == wanted);
  }
  void ThereAndBack(bool (TextBuffer::*go)(), bool (TextBuffer::*come_back)(), unsigned b) {
    const std::string before = plain_;
    if (!(buffer_.*go)() || b % 2 == 0) return;
    Require((buffer_.*come_back)() && plain_ == before);
  }

  // Repeats a notified change in the plain string.
  void Follow(const TextChange& change) {
    Require(change.pos + change.removed <= plain_.size() && change.pos + change.inserted <= buffer_.Size());
    plain_.replace(change.pos, change.removed, buffer_.Text().substr(change.pos, change.inserted));
    layout_.Update(change);
  }

  LayoutRules rules_;
  TextBuffer buffer_;
  TextLayout layout_{buffer_};
  std::string plain_;
  Listening heard_;
};

}  // namespace
}  // namespace pelmar

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  pelmar::Box box;
  for (std::size_t i = 0; i + 2 < size && !box.IsFull(); i += 3) {
    box.Step(data[i], data[i + 1], data[i + 2]);
    box.Check();
  }
  return 0;
}
