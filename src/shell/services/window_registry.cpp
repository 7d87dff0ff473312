#include "shell/services/window_registry.h"

#include <stdexcept>
#include <string>

namespace pelmar {

QWidget* WindowRegistry::Made(Entry& entry) {
  if (!entry.window) entry.window = entry.make();
  return entry.window.get();
}

QWidget& WindowRegistry::Get(std::type_index window) {
  if (QWidget* made = Made(entries_.at(window))) return *made;
  throw std::logic_error(std::string("no window of the type ") + window.name());
}

QWidget* WindowRegistry::Find(std::type_index window) {
  const auto found = entries_.find(window);
  return found == entries_.end() ? nullptr : found->second.window.get();
}

void WindowRegistry::ForEach(const std::function<void(QWidget&)>& visit) {
  for (auto& [type, entry] : entries_)
    if (QWidget* made = Made(entry)) visit(*made);
}

void WindowRegistry::Unload(std::type_index window) {
  if (QWidget* forgotten = entries_.at(window).window.release()) forgotten->deleteLater();
}

}  // namespace pelmar
