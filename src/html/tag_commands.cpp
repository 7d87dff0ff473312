#include "html/tag_commands.h"

#include "shell/editor.h"
#include "shell/insert_commands.h"
#include "text/codepage.h"
#include "text/insert.h"

namespace pelmar {
namespace {

// A command that puts the selection, or `sample` if nothing is selected, between two tags.
struct TagCommand {
  std::string_view command;
  std::string_view open;
  std::string_view close;
  std::string_view sample;
};
constexpr TagCommand kTagCommands[] = {
    {"mnuBold", "<B>", "</B>", "Tučně"_w},
    {"mnuHtmlI", "<I>", "</I>", "Kurzívou"_w},
    {"mnuHTMLU", "<U>", "</U>", "Podtrženě"_w},
    {"mnustrike", "<STRIKE>", "</STRIKE>", "Přeškrtnutě"_w},
    {"mnuhttpbig", "<BIG>", "</BIG>", "Velké"_w},
    {"mnusmaal", "<SMALL>", "</SMALL>", "Malé"_w},
    {"mnu_strong", "<STRONG>", "</STRONG>", "Silně"_w},
    {"mnusup", "<SUP>", "</SUP>", "Horní index"_w},
    {"mnusub", "<SUB>", "</SUB>", "Dolní index"_w},
    {"mnutt", "<TT>", "</TT>", "Pevná šířka znaků"_w},
    {"mnucite", "<CITE>", "</CITE>", "Citát"_w},
    {"mnuadress", "<ADDRESS>", "</ADDRESS>", "http://www.pohádka.cz"_w},
    {"mnucenter", "<CENTER>", "</CENTER>", " Centrovaný text "_w},
    {"mnupre", "<PRE> ", " </PRE>", "Předformátovaný text"_w},
    {"mnucitetext", "<BLOCKQUOTE> ", " </BLOCKQUOTE>", "Citovaný text"_w},
    {"mnuhtml_fno", "<NOFRAMES>", "</NOFRAMES>", "rámce nejsou viditelné"_w},
    {"Bold", "<B>", "</B>", "Tučně"_w},
    {"Italic", "<I>", "</I>", "Kurzívou"_w},
    {"Underline", "<U>", "</U>", "Podtrženě"_w},
    // required: the sample of the toolbar has no blanks at its ends, unlike the sample of the menu
    {"Center", "<CENTER>", "</CENTER>", "Centrovaný text"_w},
};

constexpr FixedInsert kFixedInserts[] = {
    {"mnubr", "<BR>"},       {"MnuHTMLeft", "&lt;"},    {"MnuHTMLright", "&gt;"},
    {"mnuHTMLAnd", "&amp;"}, {"MnuHTMLnobr", "&nbsp;"},
};

}  // namespace

void AddTagCommands(Editor& e) {
  for (const TagCommand& tag : kTagCommands)
    e.commands.Add(tag.command, [&e, &tag] { WrapSelection(e.text, tag.open, tag.close, tag.sample); });
  AddFixedInserts(e, kFixedInserts);
}

}  // namespace pelmar
