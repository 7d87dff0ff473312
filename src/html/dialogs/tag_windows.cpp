#include "html/dialogs/attr.h"
#include "html/dialogs/barva.h"
#include "html/dialogs/cis_seznam.h"
#include "html/dialogs/comment.h"
#include "html/dialogs/edi_tag.h"
#include "html/dialogs/hr.h"
#include "html/dialogs/html_ascii.h"
#include "html/dialogs/html_id.h"
#include "html/dialogs/label.h"
#include "html/dialogs/line_label.h"
#include "html/dialogs/meta.h"
#include "html/dialogs/nadpis.h"
#include "html/dialogs/odstavec.h"
#include "html/dialogs/seznam.h"
#include "html/dialogs/seznam_def.h"
#include "html/dialogs/smajl.h"
#include "html/dialogs/tagy.h"
#include "html/dialogs/zlomek.h"
#include "shell/services/program_parts.h"
#include "shell/windows/main/main_window.h"

namespace pelmar {

void AddTagWindows(const ProgramParts& parts) {
  const auto text = std::ref(parts.editor.text);
  const auto platform = std::ref(parts.platform);
  parts.Add<Odstavec>({"mnuparagraph"}, text);
  parts.Add<Hr>({"mnuhr", "Line"}, text);
  parts.Add<Nadpis>({"mnulabel"}, text);
  parts.Add<Barva>({"mnubarva"}, text, parts.ColorCallback());
  parts.Add<LineLabel>({"mnulinelabel"}, text);
  parts.Add<Label>({"mnulinelabel2"}, text);
  parts.Add<Zlomek>({"mnubreak"}, text);
  parts.Add<Comment>({"mnuComment"}, text);
  parts.Add<Meta>({"MnuMeta"}, text);
  parts.Add<HtmlID>({"mnuid"}, text);
  parts.Add<HTMLAscii>({"MnuHTMLASCII"}, text);
  parts.Add<Smajl>({"mnusmajl"}, text);
  parts.Add<Seznam>({"mnulist"}, text);
  parts.Add<CisSeznam>({"mnulistcount"}, text);
  parts.Add<SeznamDef>({"MnuListDef"}, text);
  parts.Add<Tagy>({"mnuvlastni"}, text);
  parts.Add<Attr>({"mnuatr"}, text, platform);
  // required: no dialog opens. The tag comes from the fields of the dialog Tagy, even while Tagy is hidden
  parts.editor.commands.Add("Mnu_Insert_Custom_Tag",
                            [&windows = parts.windows] { windows.Get<Tagy>().InsertCustomTag(); });
  parts.editor.commands.Add(
      "Mnu_Edit_Tag", [parts] { EdiTag(parts.editor.text, parts.platform, parts.ColorCallback(), &parts.main).Run(); });
}

}  // namespace pelmar
