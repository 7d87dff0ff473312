// What a rescue keeps while it isn't saved, and how it comes back: the documents or the notes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/rescue_file.h"

namespace pelmar {

// UTF-8, but for the name of the file.
struct RescueWords {
  std::string_view found;      // the question's words before the number of texts
  std::string_view wanted;     // and after it
  std::string_view kept;       // what is kept, when the program ends by an error
  std::string_view next_time;  // when it is offered
  std::string_view rest_name;  // the file where what doesn't come back stays readable
  std::string_view rest_told;  // what a person is told of that file
};

class RescueContent {
 public:
  RescueContent(const RescueKind& its_kind, const RescueWords& its_words) : kind(its_kind), words(its_words) {}
  RescueContent(const RescueContent&) = delete;
  RescueContent& operator=(const RescueContent&) = delete;
  virtual ~RescueContent() = default;

  const RescueKind kind;
  const RescueWords words;

  // What isn't saved at this moment.
  [[nodiscard]] virtual RescueRecord Unsaved() const = 0;
  // The texts as a file that a person reads.
  [[nodiscard]] virtual std::string Readable(const std::vector<RescuedText>& texts) const = 0;
  // True where nothing is lost if the text doesn't come back.
  [[nodiscard]] virtual bool IsHere(const RescuedText&) const { return false; }
  // Returns what found no place.
  virtual std::vector<RescuedText> BringBack(const std::vector<RescueRecord>& records) = 0;
};

}  // namespace pelmar
