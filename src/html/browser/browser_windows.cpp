#include <cstdlib>
#include <memory>

#include "html/browser/browser_module.h"
#include "html/browser/frm_browser.h"
#include "html/test_page.h"
#include "platform/qt/application.h"
#include "platform/qt/convert.h"
#include "shell/services/program_parts.h"

namespace pelmar {
namespace {

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
  // required: the toolbar's page ends as the text does, the menu's page has one more line break
  AddShowCommand(parts, "Browser", PageEnd::kAsItIs);
}

}  // namespace pelmar
