#include "files/save.h"

#include "files/encodings.h"
#include "files/open.h"
#include "files/outside_changes.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"
#include "text/utf8.h"

namespace pelmar {

Saver::Saver(Documents& documents, RecentFiles& recent, Platform& platform, FileNumber& file_number)
    : documents_(documents), recent_(recent), platform_(platform), file_number_(file_number) {}

void Saver::SaveToPath(const std::string& path) {
  if (MayMixEncodings(path)) SaveDocument(path);
}

void Saver::SaveDocument(const std::string& path) {
  if (!MayWrite(path)) return;
  const std::string& text = documents_.Buffer().Text();
  Write(path, text, [&] {
    documents_.Remember({path, platform_.Stamp(path), CurrentWasUtf8(documents_) || LooksLikeUtf8(text)});
    documents_.MakeCurrent(path);
  });
}

void Saver::SaveTextCopy(const std::string& path, std::string_view text) {
  if (MayWrite(path)) Write(path, text, [] {});
}

void Saver::SaveSelectionAs() {
  TextBuffer& buffer = documents_.Buffer();
  if (!buffer.HasSelection()) return;
  const auto path = platform_.SaveDialog(kDocumentFilter, kDocumentFilterIndex);
  // A copy, since the selection may change while SaveTextCopy asks its question.
  if (path) SaveTextCopy(*path, std::string(buffer.SelText()));
}

void Saver::SaveStandard() {
  const auto path = platform_.SaveDialog(kDocumentFilter, kDocumentFilterIndex);
  if (path) SaveToPath(*path);
}

void Saver::SaveFast() {
  const std::string path = documents_.CurrentPath();
  if (!MayMixEncodings(path)) return;
  const std::string question = "Opravdu uložit soubor?\r\n\"" + path + "\"";
  if (platform_.Confirmed(question, "Soubor")) SaveDocument(path);
}

void Saver::InsertFromFile() {
  const auto path = platform_.OpenDialog(kDocumentFilter, kDocumentFilterIndex);
  if (!path) return;
  try {
    const FileNumberGuard number(file_number_);
    const FileBytes file = platform_.ReadFile(*path, std::nullopt);
    // required: for an empty or unreadable file the command ends in silence
    if (file.error != 0 || file.bytes.empty()) return;
    documents_.Buffer().ReplaceSelection(FirstField(file.bytes));
    recent_.Remember(*path);
  } catch (const RuntimeError&) {  // required: the command ends in silence
  }
}

bool Saver::MayMixEncodings(const std::string& path) {
  if (!MixesEncodings(documents_.Buffer().Text())) return true;
  if (!LooksLikeUtf8(platform_.ReadFile(path, std::nullopt).bytes)) return true;
  return platform_.Message(MessageType::kYesNoStop, MixQuestion(path), "Soubor") == Answer::kYes;
}

bool Saver::MayWrite(const std::string& path) {
  if (!FileExists(file_number_, platform_, path)) return true;
  return platform_.Confirmed(OverwriteQuestion(path), "Soubor");
}

WriteOutcome Saver::WriteBytes(const std::string& path, std::string_view bytes) {
  const FileNumberGuard number(file_number_);
  return platform_.WriteDocument(path, bytes);
}

void Saver::Write(const std::string& path, std::string_view text, const std::function<void()>& written) {
  try {
    const WriteOutcome outcome = WriteBytes(path, text);
    if (outcome.error != 0) return ReportError(path, outcome);
    written();
    recent_.Remember(path);
  } catch (const RuntimeError& error) {
    ReportError(path, {.error = error.Number()});
  }
}

void Saver::ReportError(const std::string& path, const WriteOutcome& outcome) {
  platform_.Message(
      MessageType::kOk,
      "Chyba ukládání!\r\nSoubor: " + path + "\r\nKód chyby " + std::to_string(outcome.error) + KeptNotice(outcome),
      "Pelmar VEX");
}

std::string OverwriteQuestion(const std::string& path) {
  return "Opravdu uložit " + path + "?\r\nSoubor již existuje a bude přepsán!";
}

std::string TargetPath(std::string_view folder, std::string_view name, std::string_view extension) {
  return JoinPath(folder, std::string(name).append(".").append(extension));
}

std::string_view FirstField(std::string_view bytes) {
  constexpr std::string_view kBlanks = " \t";
  const std::size_t start = bytes.find_first_not_of(kBlanks);
  if (start == std::string_view::npos) return {};
  bytes.remove_prefix(start);
  if (bytes.front() == '"') return bytes.substr(1, bytes.find('"', 1) - 1);
  const std::string_view field = bytes.substr(0, bytes.find_first_of(",\r\n"));
  const std::size_t last = field.find_last_not_of(kBlanks);
  return last == std::string_view::npos ? std::string_view{} : field.substr(0, last + 1);
}

}  // namespace pelmar
