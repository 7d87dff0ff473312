// The sample web page with a script: a menu for one frame of a frameset. The pictures of the menu change under the
// mouse. When the page is loaded, the script loads random web pages into two other frames. The page also works outside
// of a frameset, without random pages.
#include "html/samples/templaty.h"
#include "shell/common.h"
#include "text/codepage.h"

namespace pelmar::samples {
namespace {

// A cell of the menu: a picture that links to the web page of the same name.
std::string Cell(std::string_view name, std::string_view caption) {
  const std::string n(name);
  return JoinLines({
      R"(     <TD>)",
      R"(      <A HREF=")" + n + R"(.html" TARGET="hlavni" onmouseover="rim(')" + n + R"x(')" onmouseout="rimm(')x" +
          n + R"x(')"><IMG)x",
      R"(       NAME=")" + n + R"(" SRC="obrazky/)" + n + R"(.gif" ALT=")" + std::string(caption) +
          R"(" WIDTH="120" HEIGHT="48" BORDER="0"></A>)",
      R"(     </TD>)",
  });
}

}  // namespace

std::string Html5(const SettingsRecord&) {
  return JoinLines({
      R"(<HTML>)",
      R"( <HEAD>)",
      R"(  <META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=windows-1250">)",
      R"(  <TITLE>Web Site Main Menu</TITLE>)",
      R"(  <SCRIPT LANGUAGE="JavaScript" TYPE="text/javascript">)",
      R"(  <!--)",
      R"(  // Rámce, do kterých se načítají náhodné stránky, a výběr stránek pro každý z nich.)"_w,
      R"(  var topFrame = "horni";)",
      R"(  var mainFrame = "hlavni";)",
      R"(  var topPages = makeArray("citat1.html", "citat2.html", "citat3.html");)",
      R"(  var mainPages = makeArray("uvod.html", "novinky.html", "tip_dne.html", "fotka_dne.html");)",
      R"(  // Hlavní číslo verze prohlížeče.)"_w,
      R"(  function getAppVersion() {)",
      R"(    return parseInt(navigator.appVersion, 10);)",
      R"(  })",
      R"(  // Vymění obrázek daného jména.)"_w,
      R"(  function swtch(name, source) {)",
      R"(    if (getAppVersion() >= 3 && document.images[name]) {)",
      R"(      document.images[name].src = source;)",
      R"(    })",
      R"(  })",
      R"(  // Načte do sousedních rámců náhodné stránky.)"_w,
      R"(  function randpage() {)",
      R"(    if (parent == self) return;)",
      R"(    if (parent.frames[topFrame]) {)",
      R"(      parent.frames[topFrame].location.href = topPages[randNum(topPages.length)];)",
      R"(    })",
      R"(    if (parent.frames[mainFrame]) {)",
      R"(      parent.frames[mainFrame].location.href = mainPages[randNum(mainPages.length)];)",
      R"(    })",
      R"(  })",
      R"(  // Myš je nad obrázkem.)"_w,
      R"(  function rim(name) {)",
      R"(    swtch(name, "obrazky/" + name + "_on.gif");)",
      R"(  })",
      R"(  // Myš obrázek opustila.)"_w,
      R"(  function rimm(name) {)",
      R"(    swtch(name, "obrazky/" + name + ".gif");)",
      R"(  })",
      R"(  // Pole z argumentů.)"_w,
      R"(  function makeArray() {)",
      R"(    var list = new Array();)",
      R"(    for (var i = 0; i < arguments.length; i++) {)",
      R"(      list[i] = arguments[i];)",
      R"(    })",
      R"(    return list;)",
      R"(  })",
      R"(  // Náhodné číslo od 0, menší než count.)"_w,
      R"(  function randNum(count) {)",
      R"(    return Math.floor(Math.random() * count);)",
      R"(  })",
      R"(  //-->)",
      R"(  </SCRIPT>)",
      R"( </HEAD>)",
      R"x( <BODY BGCOLOR="#1F2A44" TEXT="#F2F4F8" LINK="#FFD166" VLINK="#E0B050" ALINK="#FFFFFF" onload="randpage()">)x",
      R"(  <CENTER>)",
      R"(   <P><FONT FACE="Arial, Helvetica, sans-serif" SIZE="5"><B>Hlavní menu</B></FONT></P>)"_w,
      R"(   <TABLE BORDER="0" CELLSPACING="8" CELLPADDING="0">)",
      R"(    <TR ALIGN="CENTER" BGCOLOR="#2E3D63">)",
      Cell("uvod", "Úvod"_w),
      Cell("novinky", "Novinky"),
      Cell("fotky", "Fotky"),
      R"(    </TR>)",
      R"(    <TR ALIGN="CENTER" BGCOLOR="#2E3D63">)",
      Cell("odkazy", "Odkazy"),
      Cell("kniha", "Kniha hostů"_w),
      Cell("posta", "Pošta"_w),
      R"(    </TR>)",
      R"(   </TABLE>)",
      R"(   <P><FONT SIZE="2">Vítejte borun selim, dálka no půvek a zmitor.</FONT></P>)"_w,
      R"(  </CENTER>)",
      R"( </BODY>)",
      R"(</HTML>)",
  });
}

}  // namespace pelmar::samples
