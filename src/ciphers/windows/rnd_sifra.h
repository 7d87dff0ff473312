// `RND_Sifra`: the RND cipher. The window holds the table, loads the table from a file and saves it. The cipher
// reads the text in the window and replaces the document by the result.
#pragma once

#include "ciphers/rnd_cipher.h"
#include "ciphers/table_file.h"
#include "platform/qt/controls/dialog_window.h"
#include "text/text_buffer.h"

namespace Ui {
class RND_Sifra;
}

namespace pelmar {

struct Editor;

class RND_Sifra : public FormDialog<Ui::RND_Sifra> {
  Q_OBJECT

 public:
  RND_Sifra(Editor& editor, QWidget* parent);

 private:
  void Command2_Click();
  void Command3_Click();
  void Command5_Click();
  void Command6_Click();
  void Command8_Click();
  void Command9_Click();
  void GenerateNewCodes();
  void GenerateNewLetterSplit();
  void ShowCodes();
  void ShowLetters();
  // False if the coefficients can't be computed. The label then shows the failure.
  bool ShowCoefficients(CountedDigits counted);
  void EnableTableButtons();
  [[nodiscard]] Progress StartProgress();

  TextBuffer& buffer_;
  Platform& platform_;
  TableFiles files_;
  CipherTable table_;
};

}  // namespace pelmar
