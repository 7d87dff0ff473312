#include "shell/terminal_answer.h"

#include <filesystem>

#include "shell/version.h"

namespace pelmar {
namespace {

constexpr std::string_view kVersion = "Pelmar VEX " PELMAR_VERSION "\n";
constexpr std::string_view kUsage = R"(Použití: pelmar-vex [SOUBOR]
         pelmar-vex -CALC | -NOTE | -BROWSER | -NOMSG

Malý editor textu a HTML. SOUBOR smí mít nejvýše 64 000 bajtů.

  -CALC      jen kalkulačka
  -NOTE      jen poznámky
  -BROWSER   jen interní prohlížeč (z balíčku pelmar-vex-browser)
  -NOMSG     editor bez úvodní obrazovky
  --help     vypíše tuto nápovědu a skončí
  --version  vypíše verzi a skončí

Všechny příkazy popisuje nápověda v programu, klávesa F1.
)";

}  // namespace

std::optional<std::string_view> TerminalAnswer(std::span<char* const> arguments) {
  if (arguments.size() != 1) return std::nullopt;
  const std::string_view argument = arguments.front();
  if (std::error_code error; std::filesystem::exists(argument, error)) return std::nullopt;
  if (argument == "--help") return kUsage;
  if (argument == "--version") return kVersion;
  return std::nullopt;
}

}  // namespace pelmar
