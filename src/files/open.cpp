#include "files/open.h"

#include <utility>

#include "platform/paths.h"
#include "platform/runtime_error.h"
#include "text/utf8.h"

namespace pelmar {

Opener::Opener(Documents& documents, RecentFiles& recent, Platform& platform, FileNumber& file_number)
    : documents_(documents), recent_(recent), platform_(platform), file_number_(file_number) {}

void Opener::OpenPath(const std::string& path) {
  const auto stamp = platform_.Stamp(path);
  auto text = ReadIfExists(file_number_, platform_, path, kReadLimit);
  if (!text) {
    platform_.Message(MessageType::kOk, "Soubor " + path + " nenalezen!", "Soubor");
    return;
  }
  if (text->size() > kLargestDocument) {
    platform_.Message(MessageType::kOk, "Nelze otevřít " + path + ", Soubor příliš velký", "Soubor");
    return;
  }
  file_number_.Open();
  documents_.Remember({path, stamp, LooksLikeUtf8(*text)});
  documents_.MakeCurrent(path, std::move(*text));  // required: an error here leaves file number 1 open
  recent_.Remember(path);
  file_number_.Close();
}

void Opener::OpenQuietly(const std::string& path) {
  try {
    OpenPath(path);
  } catch (const RuntimeError&) {  // required: the command ends in silence
  }
}

void Opener::OpenRecentFile(int number) { OpenQuietly(std::string(recent_.Path(number))); }

void Opener::OpenStandard() {
  const auto path = platform_.OpenDialog(kDocumentFilter, kDocumentFilterIndex);
  if (path) OpenQuietly(*path);
}

void Opener::ReloadFile() {
  const std::string path = documents_.CurrentPath();
  const std::string question =
      "Opravdu reload souboru ?\r\nZměny od posledního uložení \"" + path + "\" Budou ztraceny!";
  if (platform_.Confirmed(question, "Reload")) OpenQuietly(path);
}

std::string Opener::Preview(const std::string& path) {
  if (file_number_.IsOpen()) return std::string(kNoPreview);
  FileBytes file = platform_.ReadFile(path, kReadLimit);
  if (file.error != 0 || file.bytes.size() > kLargestDocument) return std::string(kNoPreview);
  return std::move(file.bytes);
}

}  // namespace pelmar
