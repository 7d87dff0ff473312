// The conversion of a file on disk between UTF-8 and Windows-1250, into a new file beside it, piece by piece: no size
// matters. A UTF-8 file is read through before anything is written, so that nobody loses a character unasked.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "text/utf8.h"

namespace pelmar {

// What a person is told of a text of other systems that is opened: in UTF-8, or else with LF for line ends. UTF-8;
// "" for all other texts.
std::string_view FormatHint(std::string_view bytes);
// The same of a text that came from a file in UTF-8 and has got bytes in Windows-1250 since.
std::string_view MixHint();
// What a person is asked before such a text is written over the file at `path`, which is still in UTF-8.
std::string MixQuestion(const std::string& path);

// Where in a file something stands, each counted from 1. CR LF, CR and LF end a line; columns are characters, a byte
// order mark is none.
struct FilePlace {
  std::uint64_t byte = 1, line = 1, column = 1;
};

// What keeps a file from going into Windows-1250 as it is.
class Utf8Survey {
 public:
  // False from the first bytes on that are no UTF-8; nothing behind them counts.
  bool Take(std::string_view piece);
  // The file ends here.
  void Finish();

  std::optional<FilePlace> malformed;
  bool beyond_ascii = false;  // there is a character of several bytes
  std::uint64_t outside = 0;  // how many characters the page lacks, and the first of them
  FilePlace first_outside;
  char32_t first_character = 0;

 private:
  void Note(char32_t character);

  Utf8Decoder decoder_;
  FilePlace place_;         // of the character at hand
  std::uint64_t read_ = 0;  // bytes
  bool after_cr_ = false;
};

// A byte order mark goes; what the page lacks becomes "?".
class Utf8ToPage : public FileRewriter {
 public:
  std::string_view Rewrite(std::string_view piece) override;
  std::string_view Finish() override { return {}; }
  [[nodiscard]] std::uint64_t Kept() const override { return kept_; }

 private:
  Utf8Decoder decoder_;
  std::string out_;
  std::uint64_t kept_ = 0;
  bool begun_ = false;
};

class PageToUtf8 : public FileRewriter {
 public:
  explicit PageToUtf8(bool byte_order_mark) : mark_(byte_order_mark) {}
  std::string_view Rewrite(std::string_view piece) override;
  std::string_view Finish() override { return Rewrite({}); }
  [[nodiscard]] std::uint64_t Kept() const override { return kept_; }

 private:
  std::string out_;
  std::uint64_t kept_ = 0;
  bool mark_;  // still to be written
};

// The extension takes the place of the name's own one, behind its last full stop. A name that has none, or only that of
// a hidden file, keeps all.
std::string PathBeside(std::string_view path, std::string_view extension);

// What fails is told; so is a target that is the source itself. A file that is there already is asked about.
void ConvertToPage(Platform& platform, const std::string& path);                        // "1250"
void ConvertToUtf8(Platform& platform, const std::string& path, bool byte_order_mark);  // "utf8"

}  // namespace pelmar
