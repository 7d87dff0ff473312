// What a rescue file protects: the documents or the notes. RescueContent collects the unsaved texts, and brings them
// back after a crash.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/rescue_file.h"

namespace pelmar {

// Texts for the person (UTF-8), and the name of a file.
struct RescueWords {
  std::string_view found;         // the part of the question before the number of texts
  std::string_view wanted;        // the part of the question after the number of texts
  std::string_view kept;          // the kind of text, for the notice after an error
  std::string_view next_time;     // when the program will offer to restore the texts
  std::string_view rest_name;     // the name of the file for texts that don't come back
  std::string_view rest_message;  // the message about this file
};

class RescueContent {
 public:
  RescueContent(const RescueKind& its_kind, const RescueWords& its_words) : kind(its_kind), words(its_words) {}
  RescueContent(const RescueContent&) = delete;
  RescueContent& operator=(const RescueContent&) = delete;
  virtual ~RescueContent() = default;

  const RescueKind kind;
  const RescueWords words;

  [[nodiscard]] virtual RescueRecord Unsaved() const = 0;
  // The content of a text file with these texts, for a person to read.
  [[nodiscard]] virtual std::string Readable(const std::vector<RescuedText>& texts) const = 0;
  // True if the text needn't come back because the program already has it.
  [[nodiscard]] virtual bool IsHere(const RescuedText&) const { return false; }
  // Puts the texts into the program. Returns those for which there was no place.
  virtual std::vector<RescuedText> BringBack(const std::vector<RescueRecord>& records) = 0;
};

}  // namespace pelmar
