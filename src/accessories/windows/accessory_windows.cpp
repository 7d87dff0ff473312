#include "accessories/windows/accessory_windows.h"

#include "accessories/windows/color_dialog.h"
#include "accessories/windows/notes_windows.h"
#include "accessories/windows/tool_windows.h"
#include "shell/windows/program_parts.h"

namespace pelmar {

void AddAccessoryWindows(const ProgramParts& parts) {
  parts.windows.Register<ColorDialog>([parts] { return std::make_unique<ColorDialog>(parts.platform, &parts.main); });
  parts.doors.pick_color = [&windows = parts.windows](Color color) {
    return windows.Get<ColorDialog>().PickColor(color);
  };
  AddToolWindows(parts);
  AddNotesWindows(parts);
}

}  // namespace pelmar
