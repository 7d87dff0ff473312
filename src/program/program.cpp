#include "program/program.h"

#include <cstdlib>
#include <filesystem>

#include "platform/files/kept_content.h"
#include "platform/paths.h"
#include "platform/qt/application.h"
#include "platform/qt/convert.h"
#include "platform/qt/desktop/clipboard.h"
#include "program/commands.h"
#include "shell/windows/config.h"
#include "shell/windows/start.h"

namespace pelmar {
namespace {

// Shows a message with the paths of the copies that killed saves left behind (see kept_content.h), and marks these
// copies as reported.
void ReportLeftContents(Platform& platform) {
  const std::vector<std::string> left = FindUnreportedCopies(platform.InstallFolder());
  if (left.empty()) return;
  std::string text = "Ukládání minule neskončilo a soubor může být poškozen. Jeho původní obsah leží v";
  for (const std::string& path : left) text += "\r\n" + path;
  platform.Message(MessageType::kOkInfo, text, "Záchrana");
  for (const std::string& path : left) MarkAsReported(path);
}

}  // namespace

Program::Program(Platform& platform)
    : platform_(platform),
      editor_(platform),
      main_(editor_, files_),
      session_(main_,
               {.show_config = [this] { windows_.Get<Config>().Run(); },
                .show_main = [this] { main_.ShowMain(); },
                .show_start = [this] { windows_.Get<Start>().Present(); },
                .show_accessory = [this](StartMode mode) { services_.show_alone.at(mode)(); }},
               editor_, files_),
      rescue_(unsaved_, platform),
      timer_(main_, editor_) {
  AddCommands(editor_, files_);
  AddWindows();
  main_.may_close = [this] { return MayClose(); };
  rescue_.on_failure = [this](int error) { main_.Bar().WarnOfUnkept(error); };
  const auto touch = [this] {
    if (KeepsDocuments()) rescue_.KeepSoon();
  };
  listenings_ = {editor_.text.OnChange([touch](const TextChange&) { touch(); }),
                 editor_.documents.title_changed.Add(touch)};
}

void Program::AddWindows() {
  AddShellWindows(parts_);
  AddFileWindows(parts_);
  AddTextWindows(parts_);
  AddPageWindows(parts_);
  AddLinkWindows(parts_);
  AddCipherWindows(parts_);
  AddToolWindows(parts_);
  AddNotesWindows(parts_);
  AddTagWindows(parts_);
  AddBrowserWindows(parts_);
}

// False until the end of the load, because the load can put a "*" into the title although nothing is unsaved. False if
// an accessory runs alone, because nobody can then change the documents of the hidden editor.
bool Program::KeepsDocuments() const { return loaded_ && session_.Mode() == StartMode::kEditor; }

void Program::Run(const std::string& tail) {
  timer_.start();
  WhenClipboardComes(main_, [this] { session_.TakeLateClipboard(); });
  session_.Load();
  loaded_ = true;
  session_.Act(tail);
  // Only the editor reports killed saves and offers rescued documents, after its first window is open.
  if (session_.Mode() != StartMode::kEditor) return;
  QTimer::singleShot(0, &main_, [this] {
    ReportLeftContents(platform_);
    rescue_.Offer();
  });
}

bool Program::MayClose() {
  if (!session_.Close()) return false;
  rescue_.End();
  EndProgram(EXIT_SUCCESS);
  return true;
}

void Program::KeepUnsaved() {
  if (KeepsDocuments()) {
    rescue_.KeepNow();
    try {
      session_.StoreAll();
    } catch (const RuntimeError&) {
      // No message, because the system is about to end the program.
    }
  }
  services_.keep_notes();
}

void Program::ReportRuntimeError(const RuntimeError& error) {
  std::string text = "Běhová chyba " + std::to_string(error.Number()) + ":\r\n" + error.what() + "\r\n\r\n";
  if (KeepsDocuments())
    if (const std::string notice = rescue_.NoticeOf(rescue_.KeepNow()); !notice.empty()) text += notice + "\r\n\r\n";
  if (const std::string notice = services_.keep_notes(); !notice.empty()) text += notice + "\r\n\r\n";
  text += "Program bude ukončen.";
  platform_.Message(MessageType::kOk, text, "Pelmar VEX");
}

std::string CommandTail(const QStringList& arguments) {
  const std::string tail = PathFromQString(arguments.join(QLatin1Char(' ')));
  const std::filesystem::path file(tail);
  std::error_code error;
  if (file.is_relative() && std::filesystem::exists(file, error)) {
    const std::filesystem::path whole = std::filesystem::absolute(file, error), plain = whole.lexically_normal();
    // If ".." follows a symbolic link, the plain path may lead elsewhere. Then ".." stays in the result.
    return (std::filesystem::equivalent(plain, whole, error) ? plain : whole).native();
  }
  return PathFromFileUrl(tail).value_or(tail);
}

}  // namespace pelmar
