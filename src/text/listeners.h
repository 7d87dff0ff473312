// Who wants to hear of something. A listener hears for as long as both the list and the handle that it got live,
// whichever of them ends first, so it needs no farewell and may have any place among the members of its owner.
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace pelmar {

// Ends the listening with itself, or when another one is put in its place.
using Listening = std::shared_ptr<const void>;

template <typename... Args>
class Listeners {
 public:
  // Listeners are told in the order in which they were added.
  [[nodiscard]] Listening Add(std::function<void(Args...)> listener) {
    std::erase_if(listeners_, [](const auto& one) { return one.expired(); });
    auto kept = std::make_shared<const std::function<void(Args...)>>(std::move(listener));
    listeners_.push_back(kept);
    return kept;
  }

  void Tell(Args... args) const {
    // A copy: a listener may bring others in, or let them go.
    for (const auto& one : std::vector(listeners_))
      if (const auto listener = one.lock()) (*listener)(args...);
  }

 private:
  std::vector<std::weak_ptr<const std::function<void(Args...)>>> listeners_;
};

}  // namespace pelmar
