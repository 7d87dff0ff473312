#include "shell/windows/program.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "files/windows/otevri.h"
#include "files/windows/uloz.h"
#include "platform/qt/convert.h"
#include "shell/windows/config.h"
#include "shell/windows/customize_toolbar.h"
#include "shell/windows/hlp.h"
#include "shell/windows/o.h"
#include "shell/windows/pass.h"
#include "shell/windows/start.h"
#include "texttools/windows/hledani.h"
#include "texttools/windows/vyber.h"
#include "texttools/windows/zamena.h"

namespace pelmar {

Program::Program(Platform& platform)
    : platform_(platform),
      editor_(platform),
      main_(editor_),
      session_(main_, editor_.documents, editor_.settings, editor_.opener, platform, editor_.file_number),
      rescue_(editor_.documents, platform),
      timer_(main_, editor_) {
  RegisterWindows();
  AddWindowCommands();
  main_.RefreshCommands();
  main_.may_close = [this] { return MayClose(); };
  main_.show_config = [this] { windows_.Get<Config>().Run(); };
  main_.show_accessory = [this](StartMode) {
    platform_.Message(MessageType::kOk, "Tato část programu není nainstalována.", "Pelmar VEX");
    QMetaObject::invokeMethod(
        qApp, [] { QCoreApplication::exit(EXIT_FAILURE); }, Qt::QueuedConnection);
  };
  main_.show_start = [this] { windows_.Get<Start>().Present(); };
  editor_.text.OnChange([this](const TextChange&) { rescue_.Touch(); });
  editor_.documents.on_title = [this, show = editor_.documents.on_title] {
    show();
    rescue_.Touch();
  };
}

void Program::RegisterWindows() {
  windows_.Register<Otevri>([this] { return std::make_unique<Otevri>(editor_.opener, platform_, &main_); });
  windows_.Register<Uloz>([this] { return std::make_unique<Uloz>(editor_.documents, editor_.saver, &main_); });
  windows_.Register<Config>([this] {
    return std::make_unique<Config>(
        editor_.settings, platform_, [this] { session_.StoreSettings(false); }, &main_);
  });
  windows_.Register<Pass>([this] {
    return std::make_unique<Pass>(
        editor_.settings, platform_, [this](bool hide) { main_.HideText(hide); }, &main_);
  });
  windows_.Register<Start>([this] {
    return std::make_unique<Start>(
        editor_.settings, Start::Doors{[this] { main_.ShowMain(); }, [this] { windows_.Get<Otevri>().Present(); },
                                       [this] { windows_.Get<Config>().Run(); }});
  });
  windows_.Register<Hlp>([this] {
    return std::make_unique<Hlp>(
        platform_, [this] { windows_.Get<O>().Present(); }, &main_);
  });
  windows_.Register<O>([this] { return std::make_unique<O>(editor_.settings, platform_, &main_); });
  windows_.Register<Hledani>([this] { return std::make_unique<Hledani>(editor_.text, platform_, &main_); });
  windows_.Register<Zamena>([this] { return std::make_unique<Zamena>(editor_.text, platform_, &main_); });
  windows_.Register<Vyber>([this] { return std::make_unique<Vyber>(editor_.text, &main_); });
  windows_.Register<CustomizeToolbar>([this] { return std::make_unique<CustomizeToolbar>(main_.Toolbar(), &main_); });
}

void Program::AddWindowCommands() {
  const auto show = [this]<class Window>(std::type_identity<Window>, std::initializer_list<std::string_view> names) {
    for (const std::string_view name : names) editor_.commands.Add(name, [this] { windows_.Get<Window>().Present(); });
  };
  show(std::type_identity<Otevri>{}, {"mnuopen", "Open"});
  show(std::type_identity<Uloz>{}, {"mnusave", "Save"});
  show(std::type_identity<CustomizeToolbar>{}, {"mnucust"});
  show(std::type_identity<Hledani>{}, {"mnufind", "Find"});
  show(std::type_identity<Zamena>{}, {"mnuchange"});
  show(std::type_identity<Vyber>{}, {"mnupresnvyb"});
  show(std::type_identity<Start>{}, {"mnustart"});
  show(std::type_identity<Hlp>{}, {"mnuhlp", "Help"});
  show(std::type_identity<O>{}, {"mnuabout"});
  for (const std::string_view name : {"Mnu_Lock", "Lock"})
    editor_.commands.Add(name, [this] { windows_.Get<Pass>().Run(); });
}

void Program::Run(const std::string& tail) {
  timer_.start();
  session_.Start(tail);
  // Only the editor asks, when it stands; the accessories leave what they find to it.
  if (session_.Mode() == StartMode::kEditor)
    QTimer::singleShot(0, &main_, [this] { OfferAbandoned(editor_.documents, platform_); });
}

bool Program::MayClose() {
  if (!session_.Close()) return false;
  rescue_.End();
  QCoreApplication::exit(0);
  return true;
}

void Program::TellRuntimeError(const RuntimeError& error) {
  const std::string kept = rescue_.KeepNow();
  std::string text = "Běhová chyba " + std::to_string(error.Number()) + ":\r\n" + error.what() + "\r\n\r\n";
  if (!kept.empty()) {
    text += "Neuložené dokumenty jsou zachovány v souboru\r\n" + kept +
            "\r\nPříští start programu je nabídne zpět.\r\n\r\n";
  }
  text += "Program bude ukončen.";
  platform_.Message(MessageType::kOk, text, "Pelmar VEX");
}

std::string CommandTail(const QStringList& arguments) {
  const QString tail = arguments.join(QLatin1Char(' '));
  const QFileInfo file(tail);
  return Utf8FromQString(!tail.isEmpty() && file.isRelative() && file.exists() ? file.absoluteFilePath() : tail);
}

}  // namespace pelmar
