// Owns every window except the main one and short-lived dialogs. Each window has a registered function, which creates
// the window at the first use and passes the dependencies to the constructor.
#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <typeindex>

namespace pelmar {

class WindowRegistry {
 public:
  // Returns a new window, or null if a module that the window needs can't be loaded.
  using Maker = std::function<std::unique_ptr<QWidget>()>;

  // `make` must return a Window or null. The registry will own the Window.
  template <class Window>
  void Register(Maker make) {
    entries_[typeid(Window)].make = std::move(make);
  }

  // Returns the window, and creates it if necessary. Throws std::out_of_range if the window isn't registered, and
  // std::logic_error if it can't be created.
  template <class Window>
  Window& Get() {
    return static_cast<Window&>(Get(typeid(Window)));
  }
  QWidget& Get(std::type_index window);

  // The window, or null if there is none at present.
  template <class Window>
  Window* Find() {
    return static_cast<Window*>(Find(typeid(Window)));
  }

  // Like Get, but replaces a hidden window by a new one.
  template <class Window>
  Window& GetFresh() {
    if (const QWidget* old = Find(typeid(Window)); old != nullptr && !old->isVisible()) Unload<Window>();
    return Get<Window>();
  }

  // Visits every window and creates missing ones. A window that can't be created is skipped.
  void ForEach(const std::function<void(QWidget&)>& visit);

  // Removes the window, so that the next use creates a new one. The removed window is destroyed only after the current
  // event, which may be its own close event.
  template <class Window>
  void Unload() {
    Unload(typeid(Window));
  }

 private:
  struct Entry {
    Maker make;
    std::unique_ptr<QWidget> window;
  };

  // Creates the window if necessary. Null if it can't be created.
  static QWidget* Made(Entry& entry);
  QWidget* Find(std::type_index window);
  void Unload(std::type_index window);

  std::map<std::type_index, Entry> entries_;
};

}  // namespace pelmar
