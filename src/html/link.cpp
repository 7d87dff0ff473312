#include "html/link.h"

#include "html/attributes.h"

namespace pelmar {
namespace {

constexpr const char* kClose = "</A>";

std::string Opening(std::string_view target) { return "<A" + Attribute("HREF", target); }

}  // namespace

std::string AnchorTag(std::string_view name) { return "<A" + Attribute("NAME", name) + "></A>"; }

Wrapping LinkToAnchor(std::string_view name) {
  return {Opening("#" + std::string(name)) + ">", kClose, "Odkaz na " + std::string(name)};
}

Wrapping LinkToMail(std::string_view address) {
  // required: a blank before ">"
  return {Opening("mailto:" + std::string(address)) + " >", kClose, "mailto na " + std::string(address)};
}

Wrapping LinkToDocument(const LinkSpec& link) {
  std::string target = link.target;
  if (link.fragment && !link.fragment->empty()) target += "#" + *link.fragment;
  std::string open = Opening(target);
  open += Attribute("TARGET", link.frame);
  return {open + ">", kClose, "Odkaz na " + target};
}

}  // namespace pelmar
