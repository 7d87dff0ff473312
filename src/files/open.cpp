#include "files/open.h"

#include <algorithm>
#include <utility>

#include "platform/runtime_error.h"

namespace pelmar {

Opener::Opener(Documents& documents, SettingsRecord& settings, Platform& platform, FileNumber& file_number,
               OutsideChanges& outside)
    : documents_(documents), settings_(settings), platform_(platform), file_number_(file_number), outside_(outside) {}

bool Opener::FileExists(const std::string& path) {
  // required: a stuck file number fails every open until the next start, so the test may not set it free
  if (file_number_.IsOpen()) return false;
  const bool separator = path.ends_with('\\') || path.ends_with('/');
  return platform_.CanRead(separator ? path.substr(0, path.size() - 1) : path);
}

void Opener::OpenPath(const std::string& path) {
  if (!FileExists(path)) {
    platform_.Message(MessageType::kOk, "Soubor " + path + " nenalezen!", "Soubor");
    return;
  }
  file_number_.Open();
  const auto stamp = platform_.Stamp(path);
  FileBytes file = platform_.ReadFile(path, kLargestDocument + 1);
  if (file.error != 0) {
    file_number_.Close();
    throw RuntimeError(file.error, "Soubor " + path + " nelze číst");
  }
  if (file.bytes.size() > kLargestDocument) {
    platform_.Message(MessageType::kOk, "Nelze otevřít " + path + ", Soubor příliš velký", "Soubor");
    file_number_.Close();
    return;
  }
  documents_.SetCurrentPath(path);
  outside_.Note(stamp);
  documents_.Text().SetText(std::move(file.bytes));
  documents_.Target().Prime(path);  // required: its error leaves the rest undone and file number 1 open
  documents_.ShowPathInTitle();
  RememberFile(path);
  documents_.ShowPathOnTab();
  documents_.SettleSlot();
  file_number_.Close();
}

void Opener::OpenRecentFile(int number) {
  try {
    OpenPath(std::string(settings_.RecentFiles.at(static_cast<std::size_t>(number - 1))));
  } catch (const RuntimeError&) {  // required: the command ends in silence
  }
}

void Opener::OpenStandard() {
  const auto path = platform_.OpenDialog(kDocumentFilter, kDocumentFilterIndex);
  if (!path) return;
  try {
    OpenPath(*path);
  } catch (const RuntimeError&) {  // required: the command ends in silence
  }
}

void Opener::ReloadFile() {
  const std::string path = documents_.CurrentPath();
  const std::string question =
      "Opravdu reload souboru ?\r\nZměny od posledního uložení \"" + path + "\" Budou ztraceny!";
  if (platform_.Message(MessageType::kYesNoWarning, question, "Reload") != Answer::kYes) return;
  try {
    OpenPath(path);
  } catch (const RuntimeError&) {  // required: the command ends in silence
  }
}

void Opener::RememberFile(const std::string& path) {
  platform_.AddToRecentDocuments(path);
  PushRecentFile(path);
}

void Opener::PushRecentFile(const std::string& path) {
  if (MoveToHead(settings_.RecentFiles, path) && on_recent_files) on_recent_files();
}

std::string Opener::RecentItemText(int number) const {
  return "&" + std::to_string(number - 1) + " " + settings_.RecentFiles.at(static_cast<std::size_t>(number - 1));
}

std::string Opener::Preview(const std::string& path) {
  if (file_number_.IsOpen()) return std::string(kNoPreview);
  FileBytes file = platform_.ReadFile(path, kLargestDocument + 1);
  if (file.error != 0 || file.bytes.size() > kLargestDocument) return std::string(kNoPreview);
  return std::move(file.bytes);
}

bool MoveToHead(std::array<std::string, 10>& entries, const std::string& path) {
  if (path.empty() || entries.front() == path) return false;
  const auto found = std::find(entries.begin(), entries.end(), path);
  const auto last = found == entries.end() ? entries.end() - 1 : found;
  std::rotate(entries.begin(), last, last + 1);
  entries.front() = path;
  return true;
}

}  // namespace pelmar
