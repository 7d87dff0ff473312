// Converts a file on disk between UTF-8 and Windows-1250. The result is another file in the same folder. Files of any
// size are read in pieces. The first reading looks for problems, the second converts the file. The hints and questions
// about the encoding and the line ends of a document are here too.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "text/utf8.h"

namespace pelmar {

// The hint about a text for which LooksLikeUtf8 is true, or which has an LF without a CR before it. "" for any other
// text. Hints and questions are UTF-8.
std::string_view FormatHint(std::string_view bytes);
// The hint for a text that was UTF-8 when it was opened or at a later save, and now is in both encodings.
std::string_view MixHint();
// The question before a text in both encodings is written over the UTF-8 file at `path`.
std::string MixQuestion(const std::string& path);

// A position in a file. All three numbers count from 1. CR LF, CR and LF each end a line. Columns count characters,
// without a byte order mark at the start of the file.
struct FilePlace {
  std::uint64_t byte = 1, line = 1, column = 1;
};

// Counts the characters that a conversion to Windows-1250 would lose, and finds the first malformed UTF-8.
class Utf8Survey {
 public:
  // False once malformed UTF-8 was found. Later bytes are ignored.
  bool Take(std::string_view piece);
  // Call at the end of the file.
  void Finish();

  std::optional<FilePlace> malformed;
  bool beyond_ascii = false;  // the file has a character of several bytes
  std::uint64_t outside = 0;  // number of characters missing in Windows-1250
  FilePlace first_outside;
  char32_t first_outside_character = 0;

 private:
  void Note(char32_t character);

  Utf8Decoder decoder_;
  FilePlace place_;         // of the character being decoded
  std::uint64_t read_ = 0;  // bytes
  bool after_cr_ = false;
};

// Drops a byte order mark at the start of the file. A character that Windows-1250 lacks becomes "?".
class Utf8ToPage : public FileRewriter {
 public:
  std::string_view Rewrite(std::string_view piece) override;
  std::string_view Finish() override { return {}; }
  [[nodiscard]] std::uint64_t ResultLength() const override { return result_length_; }

 private:
  Utf8Decoder decoder_;
  std::string out_;
  std::uint64_t result_length_ = 0;
  bool begun_ = false;
};

class PageToUtf8 : public FileRewriter {
 public:
  explicit PageToUtf8(bool byte_order_mark) : mark_(byte_order_mark) {}
  std::string_view Rewrite(std::string_view piece) override;
  std::string_view Finish() override { return Rewrite({}); }
  [[nodiscard]] std::uint64_t ResultLength() const override { return result_length_; }

 private:
  std::string out_;
  std::uint64_t result_length_ = 0;
  bool mark_;  // the byte order mark must still be written
};

// Replaces the extension of the file name. A name without an extension, such as ".profile", gets one appended.
std::string WithExtension(std::string_view path, std::string_view extension);

// Convert a file into a file with the extension "1250" or "utf8". Ask before a readable target is overwritten. Show a
// message after a failure, or if the target is the source file. ConvertToPage refuses malformed UTF-8 with a message,
// and asks before characters are lost. ConvertToUtf8 asks if LooksLikeUtf8 is true for the file.
void ConvertToPage(Platform& platform, const std::string& path);
void ConvertToUtf8(Platform& platform, const std::string& path, bool byte_order_mark);

}  // namespace pelmar
