#include <QLoggingCategory>
#include <cstdlib>
#include <memory>

#include "html/browser/frm_browser.h"
#include "html/browser/web_view.h"
#include "html/test_page.h"
#include "platform/qt/application.h"
#include "platform/qt/convert.h"
#include "platform/qt/module.h"
#include "shell/services/program_parts.h"

namespace pelmar {
namespace {

// Loads the module pelmar-browser at the first use of the internal browser. The module is a separate shared library,
// since it needs the large web engine.
class BrowserModule {
 public:
  // Loads the module unless an earlier call has loaded it. Null if the module is missing, broken or of another version:
  // Problem() then returns the reason.
  WebViewMaker* Maker();

  // The reason why Maker() returned null, as a message for the person.
  [[nodiscard]] const QString& Problem() const { return problem_; }

 private:
  WebViewMaker* maker_ = nullptr;
  QString problem_;
};

WebViewMaker* BrowserModule::Maker() {
  if (maker_ != nullptr) return maker_;
  // Hides the engine's warning on standard error that the engine isn't linked into the program.
  QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
  const LoadedModule module = LoadModule(ModuleFolders(), QStringLiteral("pelmar-browser.so"));
  QLoggingCategory::setFilterRules(QString());
  maker_ = qobject_cast<WebViewMaker*>(module.plugin);
  if (maker_ != nullptr) return maker_;
  if (module.path.isEmpty()) {
    problem_ = QStringLiteral("Interní browser není nainstalován.\r\nJe v balíčku pelmar-vex-browser.");
  } else {
    const QString other_version = QStringLiteral("Modul je z jiné verze programu.");
    problem_ =
        QStringLiteral("Interní browser nelze spustit.\r\n") + (module.error.isEmpty() ? other_version : module.error);
  }
  return nullptr;
}

// The browser's window. Null if the module doesn't load; the person has then seen a message.
FrmBrowser* Browser(const ProgramParts& parts, BrowserModule& module) {
  if (auto* browser = parts.windows.Find<FrmBrowser>()) return browser;
  {
    const BusyPointer busy(parts.platform);  // the engine's start takes about a second
    if (module.Maker() != nullptr) return &parts.windows.Get<FrmBrowser>();
  }
  parts.platform.Message(MessageType::kOk, Utf8FromQString(module.Problem()), "Interní browser");
  return nullptr;
}

void AddShowCommand(const ProgramParts& parts, std::string_view name, PageEnd end) {
  parts.editor.commands.Add(name, [parts, end] {
    if (const auto page = PageToShow(parts.editor, end)) parts.services.show_in_browser(*page);
  });
}

}  // namespace

void AddBrowserWindows(const ProgramParts& parts) {
  const auto module = std::make_shared<BrowserModule>();
  parts.windows.Register<FrmBrowser>([parts, module]() -> std::unique_ptr<FrmBrowser> {
    if (module->Maker() == nullptr) return nullptr;
    const bool alone = parts.session.Mode() == StartMode::kBrowser;
    return std::make_unique<FrmBrowser>(*module->Maker(), parts.platform,
                                        alone ? [] { EndProgram(EXIT_SUCCESS); } : std::function<void()>());
  });
  parts.services.show_in_browser = [parts, module](const std::string& path) {
    if (path.empty()) return;
    if (FrmBrowser* browser = Browser(parts, *module)) browser->ShowInBrowser(path);
  };
  parts.services.show_alone[StartMode::kBrowser] = [parts, module] {
    FrmBrowser* browser = Browser(parts, *module);
    if (browser == nullptr) return EndProgram(EXIT_FAILURE);
    browser->ShowAlone();
  };
  AddShowCommand(parts, "Mnu_Internal_Browser", PageEnd::kLineBreak);
  // required: the toolbar's page ends as the text does, but the menu's page has one more line break
  AddShowCommand(parts, "Browser", PageEnd::kAsItIs);
}

}  // namespace pelmar
