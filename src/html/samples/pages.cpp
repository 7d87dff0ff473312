// The sample web pages without a script. Their filler text has no meaning.
#include "html/samples/templaty.h"
#include "shell/common.h"
#include "text/codepage.h"

namespace pelmar::samples {

std::string Html1(const SettingsRecord& profile) {
  return JoinLines({
      R"(<!DOCTYPE HTML PUBLIC "-//IETF/DTD HTML v.m//EN">)",
      R"(<HTML>)",
      R"( <HEAD>)",
      R"(  <META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=windows-1250">)",
      R"(  <META NAME="GENERATOR" CONTENT="Orvilanths PELmar VEX v8.0.0.3a CZ">)",
      R"(  <TITLE>My HOMEPAGE</TITLE>)",
      R"( </HEAD>)",
      R"( <BODY BGCOLOR="#FFFFFF" TEXT="#424242" LINK="#FF7D00" VLINK="#FFE100" ALINK="#E1FF00">)",
      R"(  <H1> WELCOME ! </H1>)",
      R"(  <HR ALIGN = "CENTER" NOSHADE Width = "50%">)",
      R"(  <CENTER> <A HREF="mailto:)" + profile.UserEmail + R"(" >Zamailujte mi!</A> </CENTER>)",
      R"( </BODY>)",
      R"(</HTML>)",
  });
}

// Only ASCII characters, since the head of this page doesn't declare a code page.
std::string Html2(const SettingsRecord&) {
  return JoinLines({
      R"(<html>)",
      R"(<head><title>COOL PAGE</title></head>)",
      R"(<body bgcolor="#14202b" text="#d7e2ea" link="#7fc4ff" vlink="#c9a6ff" alink="#ffd166")",
      R"(      style="max-width: 46em; margin: 2em auto; padding: 0 1em; line-height: 1.5">)",
      R"(<p><font size="7" face="Arial, Helvetica, sans-serif" color="#ffd166"><b>NADPIS</b></font></p>)",
      R"(<hr noshade size="1">)",
      R"(<p>Odstavec prvni bova luten smarik, dole vasut ramen tipu a kolis. Hebra nol mesit)",
      R"(sadu bre, tolan vi rusek opat delmi ranu. Kostal pe muri <b>zen tavor</b> libe sonu,)",
      R"(hradel vos tape lini medur a nesal.</p>)",
      R"(<p>Odstavec druhy sopta gurem ni lasek, mora <i>debun vile</i> hastor pani rukel. Lom)",
      R"(setu baran kul dives, trinam o poles zubre mat. Velas tu smon kire, dorab les unik.</p>)",
      R"(<p>Odstavec treti rimu <a href="#vypis">zabel tosek</a> an dule, pesat morin ve kule)",
      R"(hasti. Brol nemu sivat darek lopu, tas evim korna ludek a smeti.</p>)",
      R"(<a name="vypis"></a>)",
      R"(<pre style="background: #0d151c; color: #9fe0b0; padding: 1em; overflow: auto">)",
      R"(// The tag before the caret: back to the nearest "&lt;", then on to its "&gt;".)",
      R"(function findTag(text, caret) {)",
      R"(  var start = caret;)",
      R"(  while (start &gt;= 0 &amp;&amp; text.charAt(start) != "&lt;") {)",
      R"(    start = start - 1;)",
      R"(  })",
      R"(  var end = text.indexOf("&gt;", start);)",
      R"(  return text.substring(start, end + 1);)",
      R"(})",
      R"(</pre>)",
      R"(<p>T.B.C. <tt>thanx</tt></p>)",
      R"(</body>)",
      R"(</html>)",
  });
}

std::string Html3(const SettingsRecord&) {
  return JoinLines({
      R"(<HTML>)",
      R"( <HEAD>)",
      R"(  <META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=windows-1250">)",
      R"(  <TITLE>Stars</TITLE>)",
      R"( </HEAD>)",
      R"( <BODY BGCOLOR="#8390FF" TEXT="#10143A" LINK="#10106E" VLINK="#4A1060" ALINK="#A00000">)",
      R"(  <TABLE WIDTH="100%" BORDER="0" CELLSPACING="0" CELLPADDING="8" BGCOLOR="#92B6FF">)",
      R"(   <TR>)",
      R"(    <TD WIDTH="20%" ALIGN="LEFT"><A HREF="prev.html">Předchozí</A></TD>)"_w,
      R"(    <TD WIDTH="60%" ALIGN="CENTER"><H3>Sekce</H3><H1>Nadpis</H1></TD>)",
      R"(    <TD WIDTH="20%" ALIGN="RIGHT"><A HREF="next.html">Následující</A></TD>)"_w,
      R"(   </TR>)",
      R"(  </TABLE>)",
      R"(  <HR>)",
      R"(  <TABLE WIDTH="100%" BORDER="0" CELLSPACING="0" CELLPADDING="14" BGCOLOR="#92B6FF">)",
      R"(   <TR>)",
      R"(    <TD>)",
      R"(     <B><I>Quot: O čem to je</I></B><BR>)"_w,
      R"(     Hvězda palun ferik, mosat vi drůbe kolín ževu. Stor nemal úbře kyvet, sóla)"_w,
      R"(     ranis pe duřek a lomen. Věta rusit kober, dale hnízem ošku tavril.<BR><BR>)"_w,
      R"(     Obloha čirel matup, belis ven šotka ruden. Žalu mitor es práven, koždel tu)"_w,
      R"(     simra ďobek a nůlen. Tepva losik můren, hati svrek bydle om ťarek.)"_w,
      R"(    </TD>)",
      R"(   </TR>)",
      R"(  </TABLE>)",
      R"(  <HR>)",
      R"(  <CENTER>)",
      R"(   Menu : )",
      R"(   <A HREF="1.html">1</A> |)",
      R"(   <A HREF="2.html">2</A> |)",
      R"(   <A HREF="3.html">3</A> |)",
      R"(   <A HREF="4.html">4</A> |)",
      R"(   <A HREF="5.html">5</A> |)",
      R"(   <A HREF="6.html">6</A>)",
      R"(  </CENTER>)",
      R"( </BODY>)",
      R"(</HTML>)",
  });
}

std::string Html4(const SettingsRecord&) {
  return JoinLines({
      R"(<HTML>)",
      R"( <HEAD>)",
      R"(  <META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=windows-1250">)",
      R"(  <TITLE>Goo page</TITLE>)",
      R"( </HEAD>)",
      R"( <BODY BGCOLOR="#FFFFFF" TEXT="#202020" LINK="#003C96" VLINK="#5A2D82" ALINK="#B00000">)",
      R"(  <CENTER>)",
      R"(   <P><FONT FACE="Arial, Helvetica, sans-serif" SIZE="6" COLOR="#003C96"><B>Goo page</B></FONT></P>)",
      R"(   <TABLE WIDTH="486" BORDER="0" CELLSPACING="0" CELLPADDING="10" BGCOLOR="#b4cfec">)",
      R"(    <TR>)",
      R"(     <TD ALIGN="CENTER"><FONT FACE="Arial, Helvetica, sans-serif" SIZE="4"><B>Some integersting text</B></FONT></TD>)",
      R"(    </TR>)",
      R"(    <TR>)",
      R"(     <TD>Stránka borel ni tamusek, dvěre saju molnit kepar. Hůbal ves rotime lušan)"_w,
      R"(      o ďále, smikot pareň tušil vé brodan. Čalup simen dorla ježit nu koval.</TD>)"_w,
      R"(    </TR>)",
      R"(   </TABLE>)",
      R"(   <BR>)",
      R"(   <TABLE WIDTH="535" BORDER="0" CELLSPACING="0" CELLPADDING="10" BGCOLOR="#b4cfec">)",
      R"(    <TR>)",
      R"(     <TD ALIGN="CENTER"><FONT FACE="Arial, Helvetica, sans-serif" SIZE="4"><B>HERE WE GO</B></FONT></TD>)",
      R"(    </TR>)",
      R"(    <TR>)",
      R"(     <TD>)",
      R"(      <UL>)",
      R"(       <LI><A HREF="a.html">Anketa vorum</A> <FONT COLOR="#B00000"><I>new</I></FONT></LI>)",
      R"(       <LI><A HREF="b.html">Básně ni talek</A></LI>)"_w,
      R"(       <LI><A HREF="c.htm">Cesty po lurách</A> <FONT COLOR="#B00000"><I>new</I></FONT></LI>)"_w,
      R"(      </UL>)",
      R"(     </TD>)",
      R"(    </TR>)",
      R"(   </TABLE>)",
      R"(   <P>)",
      R"(    <A HREF="1.html">F1</A>&nbsp;||&nbsp;<A HREF="2.html">F2</A>&nbsp;||&nbsp;<A HREF="3.html">F3</A>&nbsp;||&nbsp;<A HREF="4.html">F4</A>)",
      R"(   </P>)",
      R"(  </CENTER>)",
      R"( </BODY>)",
      R"(</HTML>)",
  });
}

}  // namespace pelmar::samples
