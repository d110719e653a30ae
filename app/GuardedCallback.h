#pragma once

#include <memory>
#include <utility>

// Gives out callbacks that do nothing once their owner has gone. A window may outlive the
// controller that listens to it (the application object keeps the list window a little
// longer); its events must then fall into the void instead of into a destroyed object.
class LifeToken {
  public:
    template <class F>
    auto guard(F f) const {
        return [alive = std::weak_ptr<int>(alive_), f = std::move(f)](auto&&... args) {
            if (alive.lock()) {
                f(std::forward<decltype(args)>(args)...);
            }
        };
    }

    // From now on every callback given out does nothing.
    void end() { alive_.reset(); }

  private:
    std::shared_ptr<int> alive_ = std::make_shared<int>(0);
};
