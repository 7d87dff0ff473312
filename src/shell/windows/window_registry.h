// Owns every window but the main one and those of one opening, and makes each at its first use. A window gets what it
// needs through its constructor, from the maker that was registered for it.
#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <typeindex>

namespace pelmar {

class WindowRegistry {
 public:
  // `make` returns a new window; the registry owns it. It may return none where a module is missing that the window
  // needs, which then can't be got.
  template <class Window>
  void Register(std::function<std::unique_ptr<Window>()> make) {
    entries_[typeid(Window)].make = [make = std::move(make)]() -> std::unique_ptr<QWidget> { return make(); };
  }

  // The window, made now where it didn't exist. Throws std::out_of_range for one that isn't registered, and
  // std::logic_error for one that can't be made.
  template <class Window>
  Window& Get() {
    Entry& entry = entries_.at(typeid(Window));
    if (!entry.window) entry.window = entry.make();
    if (!entry.window) throw std::logic_error(std::string("no window of the type ") + typeid(Window).name());
    return static_cast<Window&>(*entry.window);
  }

  // The window where it exists already, else nothing.
  template <class Window>
  Window* Find() {
    const auto found = entries_.find(typeid(Window));
    return found == entries_.end() ? nullptr : static_cast<Window*>(found->second.window.get());
  }

  // The window at a new opening, for one that doesn't outlast its closing: made anew unless it is on show.
  template <class Window>
  Window& Anew() {
    if (const Window* old = Find<Window>(); old != nullptr && !old->isVisible()) Unload<Window>();
    return Get<Window>();
  }

  // Every window, each made now where it didn't exist; one that can't be made here is passed over.
  void ForEach(const std::function<void(QWidget&)>& visit) {
    for (auto& [type, entry] : entries_) {
      if (!entry.window) entry.window = entry.make();
      if (entry.window) visit(*entry.window);
    }
  }

  // Forgets the window; its next use makes it anew. It is destroyed when the event at hand is over, because that may be
  // the window's own close.
  template <class Window>
  void Unload() {
    if (QWidget* window = entries_.at(typeid(Window)).window.release()) window->deleteLater();
  }

 private:
  struct Entry {
    std::function<std::unique_ptr<QWidget>()> make;
    std::unique_ptr<QWidget> window;
  };
  std::map<std::type_index, Entry> entries_;
};

}  // namespace pelmar
