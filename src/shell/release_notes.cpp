#include "shell/release_notes.h"

#include "text/codepage.h"

namespace pelmar {

std::string ReleaseNotes() {
  return std::string(
      "Pelmar VEX je malý editor textu a HTML: pět dokumentů v záložkách,\r\n"
      "okna, která píší HTML, hledání a záměna, úpravy textu, šifry\r\n"
      "a kontrolní součty, kalkulačka, poznámky a vlastní prohlížeč.\r\n"
      "\r\n"
      "Text je od disku po obrazovku ve Windows-1250. Soubor se ukládá\r\n"
      "bajt po bajtu tak, jak stojí v okně.\r\n"
      "\r\n"
      "- Řádek může mít miliony znaků, psaní v něm zůstává plynulé.\r\n"
      "- Osamělé znaky CR, LF a jiné řídicí znaky jsou vidět jako značky.\r\n"
      "====================\r\n"
      "Poznámka této verze:"_w);
}

}  // namespace pelmar
