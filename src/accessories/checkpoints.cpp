#include "accessories/checkpoints.h"

#include <string>

#include "accessories/notes.h"

namespace pelmar {
namespace {

constexpr std::string_view kTitle = "Checkpoint";

}  // namespace

void SaveCheckpoint(const TextBuffer& document, TextBuffer& note, Platform& platform) {
  if (document.Size() <= kLongestNote) return note.SetText(document.Text());
  platform.Message(MessageType::kOk,
                   "Text má " + std::to_string(document.Size()) + " znaků, do poznámky se jich vejde nejvýše " +
                       std::to_string(kLongestNote) + ". Checkpoint nebyl uložen.",
                   kTitle);
}

void RestoreCheckpoint(const TextBuffer& note, TextBuffer& document, Platform& platform) {
  if (note.Empty()) return;
  if (platform.Confirmed("Opravdu vše vrátit ?", kTitle)) document.SetText(note.Text());
}

}  // namespace pelmar
