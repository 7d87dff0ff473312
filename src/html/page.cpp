#include "html/page.h"

#include "html/attributes.h"
#include "platform/paths.h"
#include "shell/common.h"
#include "shell/version.h"

namespace pelmar {
namespace {

std::string Line(std::string_view text) {
  std::string line(text);
  return line += kCrLf;
}

std::string BodyTag(const PageSpec& spec) {
  std::string tag(" <BODY");
  // required: the URL of a file, even for a bare name
  if (spec.background) tag += Attribute("BACKGROUND", PathToFileUrl(*spec.background));
  tag += Attribute("BGCOLOR", spec.bgcolor);
  tag += Attribute("TEXT", spec.text);
  tag += Attribute("LINK", spec.link);
  tag += Attribute("VLINK", spec.vlink);
  tag += Attribute("ALINK", spec.alink);
  return tag += '>';
}

std::string HeadOf(const PageSpec& spec) {
  std::string head = Line(R"(<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.0 Final//EN">)") + Line(" <HEAD>");
  head += CodePageAndGenerator();
  head += Line("  <META NAME=\"AUTHOR\" CONTENT=" + Quoted(spec.author) + '>');
  head += Line("  <META NAME=\"CREATED\" CONTENT=" + Quoted(spec.created) + '>');
  head += Line("  <TITLE>" + spec.title + "</TITLE>");
  head += Line(" </HEAD>");
  head += Line(BodyTag(spec));
  if (spec.base_font) head += Line("<BASEFONT SIZE=" + Quoted(std::to_string(*spec.base_font)) + '>');
  return head;
}

}  // namespace

std::string CodePageAndGenerator() {
  return Line(R"(  <META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=windows-1250">)") +
         Line(R"(  <META NAME="GENERATOR" CONTENT="Orvilanths PELmar VEX v)" PELMAR_VERSION R"(">)");
}

void PutAround(TextBuffer& buffer, std::string_view head, std::string_view sample, std::string_view tail) {
  std::string body(buffer.Text());
  if (body.empty()) body = sample;
  std::string text(head);
  text += body;
  text += tail;
  buffer.SetText(std::move(text));
  buffer.Select(head.size(), head.size() + body.size());
}

void WrapInPage(TextBuffer& buffer, const PageSpec& spec) {
  PutAround(buffer, HeadOf(spec), "---TEXT---", "\r\n\r\n </BODY>\r\n</HTML>");
}

}  // namespace pelmar
