#include "html/link.h"

#include "html/attributes.h"
#include "text/insert.h"

namespace pelmar {
namespace {

std::string Opening(std::string_view target) { return "<A" + Attribute("HREF", target); }

}  // namespace

void InsertLink(TextBuffer& document, const LinkTag& link) {
  WrapSelection(document, link.open, "</A>", link.open + link.text + "</A>");
}

std::string AnchorTag(std::string_view name) { return "<A" + Attribute("NAME", name) + "></A>"; }

LinkTag LinkToAnchor(std::string_view name) {
  return {Opening("#" + std::string(name)) + ">", "Odkaz na " + std::string(name)};
}

LinkTag LinkToMail(std::string_view address) {
  // required: a blank before ">"
  return {Opening("mailto:" + std::string(address)) + " >", "mailto na " + std::string(address)};
}

LinkTag LinkToDocument(const LinkSpec& link) {
  std::string target = link.target;
  if (link.fragment && !link.fragment->empty()) target += "#" + *link.fragment;
  std::string open = Opening(target);
  open += Attribute("TARGET", link.frame);
  return {open + ">", "Odkaz na " + target};
}

}  // namespace pelmar
