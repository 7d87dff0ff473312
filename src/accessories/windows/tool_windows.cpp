#include <QCoreApplication>
#include <QKeyEvent>
#include <cstdlib>

#include "accessories/windows/color_dialog.h"
#include "accessories/windows/kalkul.h"
#include "accessories/windows/klavesnice.h"
#include "accessories/windows/kod.h"
#include "accessories/windows/morse.h"
#include "accessories/windows/prev.h"
#include "platform/qt/application.h"
#include "shell/services/program_parts.h"
#include "shell/windows/main/main_window.h"
#include "text/insert.h"

namespace pelmar {
namespace {

// Sends a key stroke to the main window's text and returns after the stroke was handled. The focus stays in place: if
// it moved to the main window and back, both windows would flicker at each key.
void Stroke(MainWindow& main, const QKeyEvent& key) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent stroke(type, key.key(), key.modifiers(), key.text());
    QCoreApplication::sendEvent(&main.Box(), &stroke);
  }
}

// Whether the calculator is the whole program.
bool CalculatorIsProgram(const ProgramParts& parts) { return parts.session.Mode() == StartMode::kCalculator; }

std::unique_ptr<Kalkul> MakeKalkul(const ProgramParts& parts) {
  WindowRegistry& windows = parts.windows;
  const bool alone = CalculatorIsProgram(parts);
  const auto hand_over = [parts, alone](const std::string& number) {
    if (alone) return parts.platform.SetClipboardText(number);
    InsertAtCaret(parts.editor.text, number);
  };
  const auto hide_converter = [&windows] {
    if (Prev* converter = windows.Find<Prev>()) converter->hide();
  };
  Kalkul::Callbacks callbacks{hand_over, [&windows] { windows.Get<Prev>().Present(); }, hide_converter,
                              [&windows] { windows.Unload<Kalkul>(); }, [] { EndProgram(EXIT_SUCCESS); }};
  return std::make_unique<Kalkul>(parts.platform, alone, std::move(callbacks), alone ? nullptr : &parts.main);
}

std::unique_ptr<Prev> MakePrev(const ProgramParts& parts) {
  const bool alone = CalculatorIsProgram(parts);
  Prev::Callbacks callbacks{[&text = parts.editor.text](const std::string& number) { InsertAtCaret(text, number); },
                            [&windows = parts.windows](const std::string& number) {
                              windows.Get<Kalkul>().SetNumber(number);
                              windows.Get<Kalkul>().Present();
                            }};
  return std::make_unique<Prev>(parts.platform, alone, std::move(callbacks), alone ? nullptr : &parts.main);
}

}  // namespace

void AddToolWindows(const ProgramParts& parts) {
  const auto text = std::ref(parts.editor.text);
  const auto platform = std::ref(parts.platform);
  parts.Add<ColorDialog>({}, platform);
  parts.services.pick_color = [&windows = parts.windows](Color color) {
    return windows.Get<ColorDialog>().PickColor(color);
  };
  parts.Add<Morse>({"mnumorse"}, platform);
  parts.Add<Klavesnice>({"mnuklavesnice"}, text);
  parts.Add<Kod>({"mnuASCII"}, text, [&main = parts.main](const QKeyEvent& key) { Stroke(main, key); });
  parts.windows.Register<Kalkul>([parts] { return MakeKalkul(parts); });
  parts.windows.Register<Prev>([parts] { return MakePrev(parts); });
  parts.services.show_alone[StartMode::kCalculator] = [&windows = parts.windows] { windows.Get<Kalkul>().Present(); };
  parts.ShowBy<Kalkul>({"mnucalk"});
}

}  // namespace pelmar
