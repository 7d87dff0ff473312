#include "shell/services/window_registry.h"

#include <stdexcept>
#include <string>

namespace pelmar {

QWidget& WindowRegistry::Get(std::type_index window) {
  Entry& entry = entries_.at(window);
  if (!entry.window) entry.window = entry.make();
  if (!entry.window) throw std::logic_error(std::string("no window of the type ") + window.name());
  return *entry.window;
}

QWidget* WindowRegistry::Find(std::type_index window) {
  const auto found = entries_.find(window);
  return found == entries_.end() ? nullptr : found->second.window.get();
}

void WindowRegistry::ForEach(const std::function<void(QWidget&)>& visit) {
  for (auto& [type, entry] : entries_) {
    if (!entry.window) entry.window = entry.make();
    if (entry.window) visit(*entry.window);
  }
}

void WindowRegistry::Unload(std::type_index window) {
  if (QWidget* forgotten = entries_.at(window).window.release()) forgotten->deleteLater();
}

}  // namespace pelmar
