#include "html/frames.h"

#include "html/attributes.h"
#include "html/page.h"
#include "text/codepage.h"

namespace pelmar {

void WrapInFrameset(TextBuffer& buffer, const FramesetSpec& spec) {
  std::string head("<!DOCTYPE HTML PUBLIC \"-//IETF/DTD HTML v.m//EN\">\r\n<HTML>\r\n <HEAD>\r\n");
  head += CodePageAndGenerator();
  head += "  <TITLE>" + spec.title + "</TITLE>\r\n </HEAD>\r\n <FRAMESET";
  head += Attribute("ROWS", spec.rows);
  head += Attribute("ROWS", spec.cols);  // required: the columns are written under the name ROWS too
  head += ">\r\n </FRAMESET>\r\n <NOFRAMES>\r\n";
  PutAround(buffer, head, "Tento Prohlížeč nepodporuje Framesy"_w, "\r\n </NOFRAMES>\r\n</HTML>");
}

std::string FrameTag(const FrameSpec& spec) {
  std::string tag = "<FRAME" + Attribute("SRC", FileAddress(spec.path, spec.relative));
  tag += Attribute("NAME", spec.name);
  tag += Attribute("ALIGN", spec.align);
  tag += Attribute("FRAMEBORDER", spec.border);
  tag += Attribute("BORDERCOLOR", spec.border_color);
  tag += Attribute("FRAMESPACING", spec.spacing);
  // required: SCROLLING is written twice: before the margins without leading blanks, after the margins unchanged
  if (spec.scrolling) tag += Attribute("SCROLLING", LeftTrimmed(*spec.scrolling));
  if (spec.margins) {
    tag += Attribute("MARGINHEIGHT", LeftTrimmed(spec.margins->height));
    tag += Attribute("MARGINWIDTH", LeftTrimmed(spec.margins->width));
  }
  tag += Attribute("SCROLLING", spec.scrolling);
  if (spec.noresize) tag += " NORESIZE";
  return tag += '>';
}

}  // namespace pelmar
