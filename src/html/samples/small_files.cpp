// The samples that are not web pages.
#include "html/samples/templaty.h"
#include "shell/common.h"
#include "text/codepage.h"

namespace pelmar::samples {

std::string Ini1(const SettingsRecord&) {
  return JoinLines({
      R"([AutoCAD General])",
      R"(ToolBarSize=16)",
      R"(MonoVectors=0)",
      R"(ACAD=C:\ACADWIN\SUPPORT;C:\ACADWIN;C:\ACADWIN\FONTS)",
      R"(ACADMAXMEM=4000000)",
      R"(LastDrawing1=C:\VYKRESY\PUDORYS.DWG)",
      R"(LastDrawing2=C:\VYKRESY\REZ-A.DWG)",
      R"(ToolBar1=\3\3_new )",
      R"(ToolBar2=\3\3_open )",
      R"(ToolBar3=\3\3_qsave )",
      R"(ToolBar4=\3\3_plot )",
      R"(ToolBar5=\3\3_u )",
      R"(ToolBar6=\3\3_redo )",
      R"(ToolBar7=\3\3_line )",
      R"(ToolBar8=\3\3_pline )",
      R"(ToolBar9=\3\3_arc )",
      R"(ToolBar10=\3\3_circle )",
      R"(ToolBar11=\3\3_ellipse )",
      R"(ToolBar12=\3\3_polygon )",
      R"(ToolBar13=\3\3_dtext )",
      R"(ToolBar14=\3\3_hatch )",
      R"(ToolBar15=\3\3_dim )",
      R"(ToolBar16=\3\3_erase )",
      R"(ToolBar17=\3\3_copy )",
      R"(ToolBar18=\3\3_move )",
      R"(ToolBar19=\3\3_rotate )",
      R"(ToolBar20=\3\3_mirror )",
      R"(ToolBar21=\3\3_trim )",
      R"(ToolBar22=\3\3_extend )",
      R"(ToolBar23='_zoom _w )",
      R"(ToolBar24='_zoom _p )",
      R"(ToolBar25='_pan )",
      R"(ToolBar26='_layer )",
  });
}

std::string Ini2(const SettingsRecord&) {
  return JoinLines({
      "[Settings]",
      "PreviewPages=2",
      "",
      "[MailComposeToolBar-Summary]",
      "Bars=3",
      "ScreenCX=800",
      "ScreenCY=600",
      "",
      "[MailComposeToolBar-Bar0]",
      "BarID=59419",
      "",
      "[MailComposeToolBar-Bar1]",
      "BarID=59420",
      "",
      "[MailComposeToolBar-Bar2]",
      "BarID=59422",
      "",
      "[MailComposeToolBar-Bar3]",
      "BarID=59392",
  });
}

std::string Inf1(const SettingsRecord&) {
  return JoinLines({
      R"([autorun])",
      R"(open=autorun.exe)",
      R"(icon=icon.ini)",
      R"(shell\readme\command=notepad cti_mne.txt)",
      R"(shell\readme=&Informace o CD-ROM)",
  });
}

std::string Bat1(const SettingsRecord&) {
  return JoinLines({
      R"(@echo off)",
      R"(PATH C:\WINDOWS;C:\WINDOWS\COMMAND)",
      R"(PATH %PATH%;C:\DOS;C:\NASTROJE)",
      R"(SET BLASTER=A220 I5 D1 H5 P330 T6 )",
      R"(SET SOUND=C:\PROGRA~1\CREATIVE\AUDIOAPP)",
      R"(LH C:\MYS\MOUSE.COM)",
  });
}

std::string Bat2(const SettingsRecord&) {
  return JoinLines({
      "wcmdmgrl.exe -stopproc", "deltree backup", "del data.wts", "del wtlog.txt", "call updatenow.bat",
      "all updatenow.bat",  // required: "all", not "call"
  });
}

std::string Diz1(const SettingsRecord& profile) {
  return JoinLines({
      "XXX 1.0 for Windows XX",
      "Freeware. Freely distributable.",
      "Does not expire. No installation required.",
      "",
      "This program does...",
      "...",
      "...",
      "",
      "Credits:",
      "Me",
      "",
      "Author: " + profile.UserName,
      "E-Mail: " + profile.UserEmail,
      "Web:  http://www.xxxxxxxx.xx",
  });
}

}  // namespace pelmar::samples
