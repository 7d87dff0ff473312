// The commands of the program by name: a menu item's name, or a toolbar button's key. Each subsystem adds its own; an
// item without a command stands disabled.
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
  // An unknown name does nothing. What the command throws passes through.
  void Run(std::string_view name) const {
    if (const auto found = commands_.find(name); found != commands_.end()) found->second();
  }

 private:
  std::map<std::string, std::function<void()>, std::less<>> commands_;
};

}  // namespace pelmar
