// Converts the line ends of a file on disk between CR LF and LF. All other bytes are copied, so the code page does not
// matter. Files of any size are read in pieces.
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
  bool after_cr_ = false;  // an LF that follows belongs to this CR
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

// The title of the messages of a conversion.
inline constexpr std::string_view kConversionTitle = "Konverze UNIX <-> DOS";

// True if the target is the source file, which is reported to the person.
bool IsOwnSource(Platform& platform, const std::string& path, const std::string& target);

// The path of the converted file. required: the path is cut after its first ".", even in the name of a folder. A path
// without "." becomes the extension alone, a file in the current folder.
std::string ConvertedPath(std::string_view path, std::string_view extension);

// Convert a file into a new file with the extension "unx" or "dos". Throw RuntimeError if a file can't be read or
// written. A target that is the source file is reported and isn't written.
void ConvertToUnix(Platform& platform, const std::string& path);  // required: a longer old target keeps its tail
void ConvertToDos(Platform& platform, const std::string& path);

}  // namespace pelmar
