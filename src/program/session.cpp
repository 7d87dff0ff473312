#include "program/session.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

#include "platform/color.h"
#include "platform/paths.h"
#include "platform/twips.h"
#include "shell/rescued_documents.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr std::string_view kRecoveryName = "autosave_pelmar_vex.txt";
constexpr std::string_view kAllFilesName = "autosave_all_files.txt";
constexpr std::string_view kSettingsName = "pelmar.ini";

}  // namespace

Session::Session(MainView& view, Callbacks callbacks, Editor& editor, Files& files)
    : view_(view),
      callbacks_(std::move(callbacks)),
      documents_(editor.documents),
      settings_(editor.settings),
      files_(files),
      platform_(editor.platform),
      file_number_(editor.file_number) {}

void Session::Load() {
  view_.SetEditorColors(Rgb(0, 0, 0), Rgb(255, 255, 255));
  LoadText();
  LoadSettings();
  ApplySettingsDefaults(settings_);
  files_.recent.changed.Notify();
  view_.SetPlace({settings_.Left, settings_.Top, settings_.Width, settings_.Height});
  if (settings_.WindowState < 0 || settings_.WindowState > 2) settings_.WindowState = 0;
  view_.SetStartState(WindowMode{settings_.WindowState});
  ApplyLook();
  if (settings_.UserEmail.empty() || settings_.UserName.empty()) callbacks_.show_config();
  if (settings_.AutosnapDistance == 0) settings_.AutosnapDistance = kDefaultAutosnapDistance;
  view_.SetAlwaysOnTop(settings_.AlwaysOnTopFlag);
  documents_.ForgetPath();
}

void Session::LoadText() {
  // A file longer than kLargestDocument isn't loaded. No message says so, and the next StoreAll overwrites the file.
  auto text = ReadIfExists(file_number_, platform_, InstallPath(kRecoveryName), kReadLimit);
  if (text && text->size() <= kLargestDocument) documents_.Buffer().SetText(std::move(*text));
  TakeClipboard();
}

void Session::TakeClipboard() {
  if (documents_.Buffer().Empty() && platform_.ClipboardContent())
    documents_.Buffer().SetText(platform_.ClipboardText());
}

void Session::TakeLateClipboard() {
  const bool touched =
      documents_.Buffer().Revision() != 0 || documents_.SelectedTab() != 1 || !documents_.CurrentPath().empty();
  if (touched) return;
  TakeClipboard();
  documents_.ForgetPath();  // also removes the "*" from the title
}

void Session::LoadSettings() {
  const auto bytes = ReadIfExists(file_number_, platform_, InstallPath(kSettingsName), std::nullopt);
  if (bytes) settings_ = ReadSettings(*bytes);
}

void Session::ApplyLook() {
  view_.SetEditorFont(settings_.FontName);
  view_.SetEditorColors(settings_.ForeColor, settings_.BackColor);
  view_.SetEditorFontSize(settings_.FontSize);
  view_.SetEditorBold(settings_.FontBold);
  view_.MarkBold(settings_.FontBold);
  view_.SetEditorItalic(settings_.FontItalic);
  view_.MarkItalic(settings_.FontItalic);
}

void Session::Act(std::string_view tail) {
  const std::string upper = ToUpper(tail);
  if (upper == "-CALC") mode_ = StartMode::kCalculator;
  if (upper == "-NOTE") mode_ = StartMode::kNotes;
  if (upper == "-BROWSER") mode_ = StartMode::kBrowser;
  if (mode_ != StartMode::kEditor) return callbacks_.show_accessory(mode_);
  if (tail.empty() && settings_.ShowStart) return callbacks_.show_start();
  callbacks_.show_main();
  if (!tail.empty() && upper != "-NOMSG") files_.opener.OpenPath(std::string(tail));
}

bool Session::Close() {
  StoreAll();
  closed_ = MayEnd();
  return closed_;
}

void Session::StoreAll() {
  Store(kRecoveryName, documents_.Buffer().Text());
  Store(kAllFilesName, AllFilesText(documents_));
  settings_.WindowState = static_cast<std::int32_t>(view_.WindowState());
  StoreSettings();
}

bool Session::MayEnd() {
  const int unsaved = documents_.UnsavedCount();
  if (unsaved == 0) return true;
  const std::string question = std::to_string(unsaved) + " neuložené zněněné soubory! Opravdu konec?";
  return platform_.Confirmed(question, "Konec");
}

void Session::StoreSettings() {
  const TwipsRect place = view_.Place();
  settings_.Width = place.width;
  settings_.Height = place.height;
  settings_.Left = place.left;
  settings_.Top = place.top;
  const EditorLook look = view_.Look();
  settings_.FontName = look.font_name;
  settings_.ForeColor = look.fore_color;
  settings_.BackColor = look.back_color;
  settings_.FontSize = static_cast<std::uint8_t>(std::lround(std::clamp(look.font_size, 0.0, 255.0)));
  settings_.FontBold = look.bold;
  settings_.FontItalic = look.italic;
  WriteRecordOn(file_number_, platform_, InstallPath(kSettingsName), SettingsBytes(settings_));
}

void Session::Store(std::string_view name, std::string_view bytes) {
  WriteFileOn(file_number_, platform_, InstallPath(name), bytes);
}

std::string Session::InstallPath(std::string_view name) { return JoinPath(platform_.InstallFolder(), name); }

std::string AllFilesText(const Documents& documents) {
  std::string text;
  for (int tab = 1; tab <= kTabCount; ++tab) text += ReadableDocument(documents.Slot(tab).Path, documents.TextOf(tab));
  return text;
}

}  // namespace pelmar
