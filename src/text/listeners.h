// Functions that are called when something happens. Add returns a handle. The function is called while both the
// Listeners object and the handle exist. Either of them may be destroyed first.
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace pelmar {

// The listener is not called any more after the last copy of this handle is destroyed.
using Listening = std::shared_ptr<const void>;

template <typename... Args>
class Listeners {
 public:
  // Listeners are notified in the order in which they were added.
  [[nodiscard]] Listening Add(std::function<void(Args...)> listener) {
    std::erase_if(listeners_, [](const auto& one) { return one.expired(); });
    auto kept = std::make_shared<const std::function<void(Args...)>>(std::move(listener));
    listeners_.push_back(kept);
    return kept;
  }

  void Notify(Args... args) const {
    // A copy, since a listener may call Add.
    for (const auto& one : std::vector(listeners_))
      if (const auto listener = one.lock()) (*listener)(args...);
  }

 private:
  std::vector<std::weak_ptr<const std::function<void(Args...)>>> listeners_;
};

}  // namespace pelmar
