#include "files/dropped_files.h"

#include <algorithm>

#include "platform/paths.h"

namespace pelmar {
namespace {

// The first ten paths, one on each line. If there are more paths, a last line says how many more.
std::string ListOf(const std::vector<std::string>& paths) {
  constexpr std::size_t kMost = 10;
  std::string list;
  for (std::size_t i = 0; i < std::min(kMost, paths.size()); ++i) list += "\r\n" + paths[i];
  if (paths.size() > kMost) list += "\r\n... a další: " + std::to_string(paths.size() - kMost);
  return list;
}

}  // namespace

void OpenDropped(std::vector<std::string> paths, Documents& documents, Opener& opener, Platform& platform) {
  const auto report = [&platform](const std::string& text) { platform.Message(MessageType::kOk, text, "Soubor"); };
  // Opening a file without an extension would make every later file operation fail. So a dropped file without an
  // extension is refused.
  const auto nameless = std::stable_partition(paths.begin(), paths.end(), HasExtension);
  const std::vector<std::string> refused(nameless, paths.end());
  paths.erase(nameless, paths.end());
  if (!refused.empty()) report("Bez přípony nelze otevřít:" + ListOf(refused));
  if (paths.empty() || !platform.Confirmed("Opravdu otevřít soubor ?", "Soubor")) return;
  // The first file replaces the current document; the others open only in empty tabs.
  auto path = paths.begin();
  opener.OpenPath(*path);
  while (++path != paths.end()) {
    const int tab = documents.EmptyTab();
    if (tab == 0) return report("Není volná záložka, neotevřeny zůstaly soubory:" + ListOf({path, paths.end()}));
    documents.SwitchTo(tab);
    opener.OpenPath(*path);
  }
}

}  // namespace pelmar
