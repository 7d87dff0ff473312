// Owns every window but the main one and those of one opening, and makes each at its first use. A window gets what it
// needs through its constructor, from the maker that was registered for it.
#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <typeindex>

namespace pelmar {

class WindowRegistry {
 public:
  // Returns a new window, or none where a module is missing that the window needs.
  using Maker = std::function<std::unique_ptr<QWidget>()>;

  // `make` returns a Window. The registry owns it.
  template <class Window>
  void Register(Maker make) {
    entries_[typeid(Window)].make = std::move(make);
  }

  // The window, made now where it didn't exist. Throws std::out_of_range for one that isn't registered, and
  // std::logic_error for one that can't be made.
  template <class Window>
  Window& Get() {
    return static_cast<Window&>(Get(typeid(Window)));
  }
  QWidget& Get(std::type_index window);

  // The window where it exists already, else nothing.
  template <class Window>
  Window* Find() {
    return static_cast<Window*>(Find(typeid(Window)));
  }

  // The window at a new opening, for one that doesn't outlast its closing: made anew unless it is on show.
  template <class Window>
  Window& Anew() {
    if (const QWidget* old = Find(typeid(Window)); old != nullptr && !old->isVisible()) Unload<Window>();
    return Get<Window>();
  }

  // Every window, each made now where it didn't exist; one that can't be made here is passed over.
  void ForEach(const std::function<void(QWidget&)>& visit);

  // Forgets the window; its next use makes it anew. It is destroyed when the event at hand is over, because that may be
  // the window's own close.
  template <class Window>
  void Unload() {
    Unload(typeid(Window));
  }

 private:
  struct Entry {
    Maker make;
    std::unique_ptr<QWidget> window;
  };

  QWidget* Find(std::type_index window);
  void Unload(std::type_index window);

  std::map<std::type_index, Entry> entries_;
};

}  // namespace pelmar
