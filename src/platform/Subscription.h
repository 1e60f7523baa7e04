#pragma once

#include <memory>

namespace velvane {

/// Something under way that ends with its token.
///
/// Once the destructor has returned, no call is under way and none comes any more. It may be
/// destroyed on the main thread only, unless who hands it out says otherwise, and never from within
/// one of its own calls.
class Subscription {
public:
    virtual ~Subscription() = default;
    Subscription(const Subscription &) = delete;
    Subscription &operator=(const Subscription &) = delete;

protected:
    Subscription() = default;
};

using Token = std::unique_ptr<Subscription>;

} // namespace velvane
