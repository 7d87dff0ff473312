// Prints the text or the selection, with the program's own word wrap. Printed texts are Windows-1250.
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

// Puts words, separated by blanks, on lines of `page_width`, and breaks no word. `end_of` returns the right end of a
// text without line breaks. The pieces point into `text`. required: a word that reaches into the right margin, as wide
// as eight "Z", moves to a new line, even from an empty line. In a word with line breaks, only the first part can move.
std::vector<PrintedPiece> LayOutForPrint(std::string_view text, double page_width,
                                         const std::function<double(double x, std::string_view text)>& end_of);

// The name of the print job: the file's name without its folder, or the program's name if there is no file.
std::string PrintName(std::string_view path);

// Prints the text. If there is a selection, first asks whether to print only the selection, and prints nothing if the
// person closes the question. If no printer can be used, writes a PDF file. Then a message shows the path, and the
// error if the file can't be written. Throws RuntimeError if a printer fails.
void PrintDocument(Editor& editor, const EditorLook& look);

void AddPrintCommands(Editor& editor, MainLook& look);

}  // namespace pelmar
