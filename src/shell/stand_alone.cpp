#include "shell/stand_alone.h"

#include <string>

namespace pelmar {

bool MayEndStandAlone(Platform& platform, std::string_view accessory) {
  const std::string question = "OPRAVDU UKONČIT " + std::string(accessory) + " (Pelmar VEX) ?";
  return platform.Message(MessageType::kYesNoStop, question, "Konec") == Answer::kYes;
}

}  // namespace pelmar
