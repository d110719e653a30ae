#include "common/Services.h"

namespace {
Services& registry() {
    static Services s;
    return s;
}
}  // namespace

Services& services() {
    return registry();
}

ScopedServices::ScopedServices(Services s) : saved_(std::move(registry())) {
    registry() = std::move(s);
}

ScopedServices::~ScopedServices() {
    registry() = std::move(saved_);
}

QDateTime clockNow() {
    if (auto& c = services().clock) {
        return c->now();
    }
    return SystemClock().now();
}
