// The conversion of a file on disk between line ends of CR LF and of LF alone. Bytes stay bytes: no code page matters,
// and no size does.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"

namespace pelmar {

// CR LF, CR and LF each end a line; each line goes out with LF behind it, the last one too.
class ToLineFeeds : public FileRewriter {
 public:
  std::string_view Rewrite(std::string_view piece) override;
  std::string_view Finish() override;
  [[nodiscard]] std::uint64_t Kept() const override { return kept_; }

 private:
  std::vector<char> out_;
  std::uint64_t kept_ = 0;
  bool after_cr_ = false;  // an LF that comes now belongs to the CR before it
  bool in_line_ = false;   // the last line has no end yet
};

// Each LF goes out as CR LF; a CR that stands before it stays, so CR LF becomes CR CR LF. required: what stands behind
// the last LF is lost.
class ToCrLf : public FileRewriter {
 public:
  std::string_view Rewrite(std::string_view piece) override;
  std::string_view Finish() override { return {}; }
  [[nodiscard]] std::uint64_t Kept() const override { return kept_; }

 private:
  std::vector<char> out_;
  std::uint64_t put_ = 0;
  std::uint64_t kept_ = 0;
};

// The title of what a conversion says.
inline constexpr std::string_view kConversionTitle = "Konverze UNIX <-> DOS";

// True, which is told, where the result would take the place of what it is made from.
bool IsOwnSource(Platform& platform, const std::string& path, const std::string& target);

// Where the conversion of a file goes. required: the path is cut behind its first full stop, be that in the name of a
// folder; a path without one gives the bare extension, a file in the current folder.
std::string ConvertedPath(std::string_view path, std::string_view extension);

// Both throw RuntimeError where a file fails. A target that is the source itself is told and left alone.
void ConvertToUnix(Platform& platform, const std::string& path);  // "unx"; required: a longer old target keeps its tail
void ConvertToDos(Platform& platform, const std::string& path);   // "dos"

}  // namespace pelmar
