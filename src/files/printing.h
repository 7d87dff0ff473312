// Printing the text or its selection on the default printer, with the program's own word wrap. Texts are Windows-1250.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/main_view.h"

namespace pelmar {

struct Editor;

// A piece of text on paper, behind `x` of its line. Lines count from 0, through all pages.
struct PrintedPiece {
  std::size_t line = 0;
  double x = 0;
  std::string_view text;
  bool operator==(const PrintedPiece&) const = default;
};

// The words of a text laid on lines of that width. Only blanks separate words; a line break inside a word ends the
// line. `end_of` tells where a text that begins at x ends; it gets no line breaks. The pieces look into `text`.
// required: the width of eight "Z" stays free at the right. A word that is wider than what is left of the line begins a
// new one, also where the line is still empty, and isn't broken: it may run off the paper.
std::vector<PrintedPiece> LayOutForPrint(std::string_view text, double page_width,
                                         const std::function<double(double x, std::string_view text)>& end_of);

// What a print of the document is called: its file's name without the folder, the program's name where it has no file.
std::string PrintName(std::string_view path);

// Asks about a selection and prints. Throws RuntimeError where the printer fails.
void PrintDocument(Editor& editor, const EditorLook& look);

void AddPrintCommands(Editor& editor, MainLook& look);

}  // namespace pelmar
