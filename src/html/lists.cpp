#include "html/lists.h"

#include <algorithm>
#include <span>

#include "html/attributes.h"
#include "shell/common.h"
#include "shell/editor.h"

namespace pelmar {
namespace {

constexpr std::string_view kBulletTypes[] = {"disk", "circle", "square"};
constexpr std::string_view kNumberTypes[] = {"1", "a", "A", "I", "i"};

std::span<const std::string_view> TypesOf(ListKind kind) {
  return kind == ListKind::kBullets ? std::span<const std::string_view>(kBulletTypes) : kNumberTypes;
}

std::string_view TagOf(ListKind kind) { return kind == ListKind::kBullets ? "UL" : "OL"; }

std::string Element(std::string_view tag, std::string_view text) {
  std::string element("<");
  return element.append(tag).append(">").append(text).append("</").append(tag).append(">");
}

void MakeListOfSelection(Editor& e, ListKind kind) {
  if (!e.text.HasSelection()) {
    e.platform.Message(MessageType::kOk, "Vyber text", "HTML list");
    return;
  }
  e.text.ReplaceSelection(ListOfLines(e.text.SelText(), kind));
}

}  // namespace

std::string BuildList(const ListSpec& spec) {
  std::string list("<");
  list += TagOf(spec.kind);
  const std::span<const std::string_view> types = TypesOf(spec.kind);
  if (spec.type && *spec.type < types.size()) list += Attribute("TYPE", types[*spec.type]);
  if (spec.compact) list += " COMPACT";
  list += ">";
  if (spec.heading) list.append(kCrLf).append(Element("LH", *spec.heading));
  for (const std::string& item : spec.items) list.append(kCrLf).append(Element("LI", item));
  return list.append(kCrLf).append("</").append(TagOf(spec.kind)).append(">");
}

std::string BuildDefinitionList(const std::vector<std::string>& terms, const std::vector<std::string>& definitions) {
  const auto row_of = [](const std::vector<std::string>& rows, std::size_t row) {
    return row < rows.size() ? std::string_view(rows[row]) : std::string_view();
  };
  std::string list("<DL>");
  list += kCrLf;
  for (std::size_t row = 0; row < std::max(terms.size(), definitions.size()); ++row)
    list.append(Element("DT", row_of(terms, row)))
        .append(kCrLf)
        .append(Element("DD", row_of(definitions, row)))
        .append(kCrLf);
  return list += "</DL>";
}

std::string ListOfLines(std::string_view text, ListKind kind) {
  std::string list("<");
  list.append(TagOf(kind)).append("><LI>");
  for (const char ch : text.substr(0, std::max<std::size_t>(text.size(), 1) - 1)) {
    if (ch == '\r') list += "</LI>";
    list += ch;
    if (ch == '\n') list += "<LI>";
  }
  return list.append("</LI></").append(TagOf(kind)).append(">");
}

void AddListCommands(Editor& editor) {
  editor.commands.Add("mnu_HTML_sel_list", [&editor] { MakeListOfSelection(editor, ListKind::kBullets); });
  editor.commands.Add("mnu_HTML_sel_num_list", [&editor] { MakeListOfSelection(editor, ListKind::kNumbers); });
}

}  // namespace pelmar
