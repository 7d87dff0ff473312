#include "html/dialogs/tag_windows.h"

#include "html/dialogs/block_dialogs.h"
#include "html/dialogs/edi_tag.h"
#include "html/dialogs/inline_dialogs.h"
#include "html/dialogs/list_dialogs.h"
#include "html/dialogs/tag_dialogs.h"
#include "shell/windows/program_parts.h"

namespace pelmar {
namespace {

// A window that needs the text alone, shown by the commands.
template <class Window>
void Add(const ProgramParts& parts, std::initializer_list<std::string_view> commands) {
  parts.windows.Register<Window>([parts] { return std::make_unique<Window>(parts.editor.text, &parts.main); });
  parts.ShowBy<Window>(commands);
}

void AddFragmentWindows(const ProgramParts& parts) {
  Add<Odstavec>(parts, {"mnuparagraph"});
  Add<Hr>(parts, {"mnuhr", "Line"});
  Add<Nadpis>(parts, {"mnulabel"});
  Add<LineLabel>(parts, {"mnulinelabel"});
  Add<Label>(parts, {"mnulinelabel2"});
  Add<Zlomek>(parts, {"mnubreak"});
  Add<Comment>(parts, {"mnuComment"});
  Add<Meta>(parts, {"MnuMeta"});
  Add<HtmlID>(parts, {"mnuid"});
  Add<HTMLAscii>(parts, {"MnuHTMLASCII"});
  Add<Smajl>(parts, {"mnusmajl"});
  parts.windows.Register<Barva>(
      [parts] { return std::make_unique<Barva>(parts.editor.text, parts.ColorDoor(), &parts.main); });
  parts.ShowBy<Barva>({"mnubarva"});
}

void AddListWindows(const ProgramParts& parts) {
  Add<Seznam>(parts, {"mnulist"});
  Add<CisSeznam>(parts, {"mnulistcount"});
  Add<SeznamDef>(parts, {"MnuListDef"});
}

void AddTagEditors(const ProgramParts& parts) {
  Add<Tagy>(parts, {"mnuvlastni"});
  // required: without a dialog; the hidden window's fields say what the tag is
  parts.editor.commands.Add("Mnu_Insert_Custom_Tag",
                            [&windows = parts.windows] { windows.Get<Tagy>().InsertCustomTag(); });
  parts.windows.Register<Attr>(
      [parts] { return std::make_unique<Attr>(parts.editor.text, parts.platform, &parts.main); });
  parts.ShowBy<Attr>({"mnuatr"});
  parts.editor.commands.Add(
      "Mnu_Edit_Tag", [parts] { EdiTag(parts.editor.text, parts.platform, parts.ColorDoor(), &parts.main).Run(); });
}

}  // namespace

void AddTagWindows(const ProgramParts& parts) {
  AddFragmentWindows(parts);
  AddListWindows(parts);
  AddTagEditors(parts);
}

}  // namespace pelmar
