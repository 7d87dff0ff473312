// Prints the text or its selection on the default printer, with the program's own word wrap. Texts are Windows-1250.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/main_view.h"

namespace pelmar {

struct Editor;

// A piece of text on paper. `x` is the distance from the start of the line. Lines count from 0 over all pages.
struct PrintedPiece {
  std::size_t line = 0;
  double x = 0;
  std::string_view text;
  bool operator==(const PrintedPiece&) const = default;
};

// Lays out words, separated by blanks, on lines of `page_width`. `end_of` returns the right end of a text that
// starts at x and has no line breaks. The pieces point into `text`. required: the width of eight "Z" stays free at the
// right. A word that doesn't fit starts a new line, even if the current line is empty, and isn't broken.
std::vector<PrintedPiece> LayOutForPrint(std::string_view text, double page_width,
                                         const std::function<double(double x, std::string_view text)>& end_of);

// The name of the print job: the file's name without its folder, or the program's name if there is no file.
std::string PrintName(std::string_view path);

// Prints the text. If there is a selection, first asks whether to print only the selection. Without a printer, writes a
// PDF file and shows its path. Throws RuntimeError if the printer fails.
void PrintDocument(Editor& editor, const EditorLook& look);

void AddPrintCommands(Editor& editor, MainLook& look);

}  // namespace pelmar
