#include <cstdlib>

#include "accessories/checkpoints.h"
#include "accessories/windows/analytic.h"
#include "accessories/windows/poznamka.h"
#include "platform/qt/application.h"
#include "platform/qt/frames/dialog_parent.h"
#include "shell/services/program_parts.h"
#include "shell/windows/main/main_window.h"

namespace pelmar {
namespace {

std::unique_ptr<Poznamka> MakeNotes(const ProgramParts& parts) {
  const StartMode mode = parts.session.Mode();
  const auto end = [parts, mode] {
    if (mode == StartMode::kNotes) return EndProgram(EXIT_SUCCESS);
    parts.windows.Unload<Poznamka>();
  };
  return std::make_unique<Poznamka>(
      Poznamka::Surroundings{parts.platform, parts.editor.file_number, parts.editor.settings, parts.main, mode, end});
}

void ShowNotes(const ProgramParts& parts) {
  auto& notes = parts.windows.Get<Poznamka>();
  notes.Present();
  ExpectActive(&notes);
  notes.OfferRescued();
}

void AddCheckpoints(const ProgramParts& parts) {
  TextBuffer& buffer = parts.editor.text;
  parts.editor.commands.Add("mnu_chp_s", [parts, &buffer] {
    SaveCheckpoint(buffer, parts.windows.Get<Poznamka>().Buffer(), parts.platform);
  });
  parts.editor.commands.Add("mnu_chp_v", [parts] { ShowNotes(parts); });
  parts.editor.commands.Add("mnu_chp_r", [parts, &buffer] {
    auto& notes = parts.windows.Get<Poznamka>();
    notes.OfferRescued();  // first, because the rescued notes may contain the checkpoint
    RestoreCheckpoint(notes.Buffer(), buffer, parts.platform);
  });
}

std::string KeepNotes(WindowRegistry& windows) {
  auto* notes = windows.Find<Poznamka>();
  return notes == nullptr ? std::string() : notes->KeepNow();
}

}  // namespace

void AddNotesWindows(const ProgramParts& parts) {
  parts.windows.Register<Poznamka>([parts] { return MakeNotes(parts); });
  parts.Add<Analytic>({"mnu_analysis"}, std::cref(parts.editor.text));
  parts.editor.commands.Add("mnupozn", [parts] { ShowNotes(parts); });
  parts.services.show_alone[StartMode::kNotes] = [parts] { ShowNotes(parts); };
  AddCheckpoints(parts);
  parts.services.keep_notes = [&windows = parts.windows] { return KeepNotes(windows); };
}

}  // namespace pelmar
