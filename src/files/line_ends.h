// Converts the line ends of a file on disk to LF or to CR LF. The conversion looks only for the bytes CR and LF, so the
// code page doesn't matter. Files of any size are read in pieces.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"

namespace pelmar {

// CR LF, CR and LF each end a line. Each line is written with LF at its end, the last one too.
class ToLineFeeds : public FileRewriter {
 public:
  std::string_view Rewrite(std::string_view piece) override;
  std::string_view Finish() override;
  [[nodiscard]] std::uint64_t ResultLength() const override { return result_length_; }

 private:
  std::vector<char> out_;
  std::uint64_t result_length_ = 0;
  bool after_cr_ = false;  // the last byte was a CR; an LF that follows ends the same line
  bool in_line_ = false;   // the last line has no end yet
};

// Writes a CR before each LF, even after a CR: CR LF becomes CR CR LF. required: text after the last LF is lost.
class ToCrLf : public FileRewriter {
 public:
  std::string_view Rewrite(std::string_view piece) override;
  std::string_view Finish() override { return {}; }
  [[nodiscard]] std::uint64_t ResultLength() const override { return result_length_; }

 private:
  std::vector<char> out_;
  std::uint64_t put_ = 0;
  std::uint64_t result_length_ = 0;
};

inline constexpr std::string_view kConversionTitle = "Konverze UNIX <-> DOS";

// Whether the target is the source file. If so, a message tells the person.
bool IsOwnSource(Platform& platform, const std::string& path, const std::string& target);

// The path of the converted file. required: the path is cut after its first ".", even in the name of a folder. For a
// path without ".", the result is only the extension, so the converted file lies in the current folder.
std::string ConvertedPath(std::string_view path, std::string_view extension);

// Convert a file into the file of ConvertedPath with the extension "unx" or "dos". An old target is overwritten without
// a question. If the target is the source file, a message says so and nothing is written. Throw RuntimeError if reading
// or writing fails.
void ConvertToUnix(Platform& platform, const std::string& path);  // required: a longer old target keeps its tail
void ConvertToDos(Platform& platform, const std::string& path);

}  // namespace pelmar
