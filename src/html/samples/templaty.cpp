#include "html/samples/templaty.h"

#include "text/codepage.h"

namespace pelmar {
namespace {

constexpr Sample kSamples[] = {
    {"HTML1", "Jednoduchý HTML dokument 1"_w, "test1.html", "sample_html", samples::Html1},
    {"HTML2", "Jednoduchý HTML dokument 2"_w, "test2.html", "sample_html", samples::Html2},
    {"HTML3", "Jednoduchý HTML dokument 3"_w, "test3.html", "sample_html", samples::Html3},
    {"HTML4", "Jednoduchý HTML dokument 4"_w, "test4.html", "sample_html", samples::Html4},
    {"INI1", "Inicializační soubor 1"_w, "acad.ini", "sample_ini", samples::Ini1},
    {"INI2", "Inicializační soubor 2"_w, "netscape.ini", "sample_ini", samples::Ini2},
    {"INF1", "Autorun", "autorun.inf", "sample_disc", samples::Inf1},
    {"HTML5", "HTML s javascriptem", "java.html", "sample_script", samples::Html5},
    {"BAT1", "Dávkový soubor 1"_w, "autoexec.bat", "sample_batch", samples::Bat1},
    {"BAT2", "Dávkový soubor 2"_w, "cleanup.bat", "sample_batch", samples::Bat2},
    {"DIZ1", "info", "file_ID.diz", "sample_info", samples::Diz1},
};

}  // namespace

std::span<const Sample> Samples() { return kSamples; }

std::string SampleText(std::string_view key, const SettingsRecord& profile) {
  for (const Sample& sample : kSamples)
    if (sample.key == key) return sample.make(profile);
  return {};
}

}  // namespace pelmar
