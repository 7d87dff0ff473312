// The program's commands. A command's name is the name of a menu item or the key of a toolbar button. Each subsystem
// adds its own commands. Every button has one, and so has every menu item that is no submenu or separator.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace pelmar {

class Commands {
 public:
  void Add(std::string_view name, std::function<void()> run) { commands_[std::string(name)] = std::move(run); }
  [[nodiscard]] bool Has(std::string_view name) const { return commands_.find(name) != commands_.end(); }
  // Does nothing for an unknown name. Exceptions of the command pass through.
  void Run(std::string_view name) const {
    if (const auto found = commands_.find(name); found != commands_.end()) found->second();
  }

 private:
  std::map<std::string, std::function<void()>, std::less<>> commands_;
};

}  // namespace pelmar
