// Writes the pages that the program makes into a folder, so that a test can read them in a browser.
//
//   page_maker FOLDER
//
// The HTML samples become HTML1.html to HTML5.html. page.html is a page of the page creator with what the dialogs put
// into it, frames.html a frameset of two frames, HTML1.html and page.html, as the frameset and frame dialogs write it.
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>

#include "html/blocks.h"
#include "html/frames.h"
#include "html/image.h"
#include "html/link.h"
#include "html/lists.h"
#include "html/page.h"
#include "html/samples/templaty.h"
#include "html/table_builder.h"
#include "text/codepage.h"

namespace pelmar {
namespace {

std::string Table() {
  TableSpec spec;
  spec.columns = 2;
  spec.rows = 2;
  spec.border = {TableFrame::kBox, " 2"};
  spec.caption = {CaptionSide::kTop, std::string("Nadpis tabulky")};
  TableGrid grid;
  grid.CellText[1][1] = "Žlutá"_w;
  grid.CellAttrs[1][1] = " BGCOLOR=\"#FFFF00\"";
  grid.CellText[2][1] = "Kůň"_w;
  grid.CellText[1][2] = "dole vlevo";
  grid.CellText[2][2] = "dole vpravo";
  return BuildTable(spec, grid);
}

std::string Everything(const std::string& folder) {
  ImageSpec image;
  image.path = folder + "/obr.gif";
  image.alt = "popis";
  image.size = ImageSpec::Size{" 40", " 30"};
  ListSpec list;
  list.heading = "Nadpis seznamu";
  list.items = {"první"_w.data(), "druhá"_w.data()};
  TextBuffer box;
  WrapSelection(box, Heading({" 1", Align::kCenter, false}));
  for (const std::string& fragment :
       {Table(), ImageTag(image), BuildList(list), BuildDefinitionList({"pojem"}, {"vysvětlení"_w.data()}),
        HorizontalRule({Align::kCenter, true, " 50"}), LinedHeading("Linka"), Fraction("1", "2"), CommentText("skryto"),
        CharacterReference(382), AnchorTag("cil"), LinkToAnchor("cil").open + "na cil</A>"})
    box.ReplaceSelection("\r\n" + fragment);
  return std::string(box.Text());
}

void Put(const std::string& path, std::string_view text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  if (!file.flush()) throw std::runtime_error(path);
}

void MakePages(const std::string& folder) {
  SettingsRecord profile;
  profile.UserName = "Jan";
  profile.UserEmail = "jan@example.cz";
  for (const Sample& sample : Samples())
    if (sample.key.starts_with("HTML")) Put(folder + '/' + std::string(sample.key) + ".html", sample.make(profile));

  TextBuffer page;
  page.SetText(Everything(folder));
  PageSpec spec{.author = "Jan", .created = "11-24-2026", .title = "Stránka tvořená"_w.data()};
  spec.background = folder + "/pozadi.gif";
  spec.text = "#202020";
  spec.base_font = 4;
  WrapInPage(page, spec);
  Put(folder + "/page.html", page.Text());

  TextBuffer frames;
  WrapInFrameset(frames, {.cols = "40%,60%", .title = "Rámce"_w.data()});
  std::string tags;
  for (const char* name : {"HTML1.html", "page.html"})
    tags += FrameTag({.path = folder + '/' + name, .name = std::string(name)}) + "\r\n";
  std::string text(frames.Text());
  text.insert(text.find(" </FRAMESET>"), tags);
  Put(folder + "/frames.html", text);
}

}  // namespace
}  // namespace pelmar

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: page_maker FOLDER\n");
    return 1;
  }
  try {
    pelmar::MakePages(argv[1]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "page_maker: %s\n", error.what());
    return 1;
  }
  return 0;
}
