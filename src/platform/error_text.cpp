#include "platform/error_text.h"

#include <algorithm>
#include <cerrno>
#include <iterator>

namespace pelmar {
namespace {

struct Meaning {
  int number;
  const char* text;
};

constexpr Meaning kMeanings[] = {
    {EPERM, "operace není povolena"},
    {ENOENT, "soubor nebo složka neexistuje"},
    {EINTR, "operace byla přerušena"},
    {EIO, "chyba zařízení při čtení nebo zápisu"},
    {ENXIO, "zařízení není k dispozici"},
    {EAGAIN, "soubor teď není k dispozici, zkuste to znovu"},
    {ENOMEM, "nedostatek paměti"},
    {EACCES, "přístup odepřen"},
    {EBUSY, "soubor nebo zařízení se právě používá"},
    {EEXIST, "soubor již existuje"},
    {ENODEV, "zařízení neexistuje"},
    {ENOTDIR, "část cesty není složka"},
    {EISDIR, "je to složka"},
    {EINVAL, "není to obyčejný soubor"},
    {ENFILE, "v systému je otevřeno příliš mnoho souborů"},
    {EMFILE, "program má otevřeno příliš mnoho souborů"},
    {ETXTBSY, "soubor je spuštěný program"},
    {EFBIG, "soubor je příliš velký"},
    {ENOSPC, "na disku není místo"},
    {EROFS, "disk je jen pro čtení"},
    {ENAMETOOLONG, "jméno je příliš dlouhé"},
    {ELOOP, "příliš mnoho odkazů za sebou"},
    {EOVERFLOW, "soubor je příliš velký"},
    {ENOTSUP, "disk to neumí"},
    {ENOTCONN, "síťový disk není připojen"},
    {ETIMEDOUT, "síťový disk neodpovídá"},
    {EHOSTUNREACH, "síťový disk není dostupný"},
    {ESTALE, "síťový disk byl mezitím odpojen"},
    {EDQUOT, "místo přidělené na disku je vyčerpáno"},
};

}  // namespace

std::string ErrorText(int number) {
  const auto* const found =
      std::ranges::find_if(kMeanings, [number](const Meaning& meaning) { return meaning.number == number; });
  return found == std::end(kMeanings) ? "chyba číslo " + std::to_string(number) : found->text;
}

}  // namespace pelmar
