#pragma once

#include <Foundation/Foundation.h>

#include <cstddef>
#include <functional>

/// What the fakes know together.
namespace kinesta::fakes {

/// Counts what the platform keeps until it is taken back, for openRegistrations(): "observer", "monitor", "timer".
void registered(const char* kind);
void unregistered(const char* kind, std::size_t count = 1);

/// Turns the main run loop until `isDone`, asked after each turn. Aborts when nothing comes for seconds.
void turnRunLoop(const std::function<bool()>& isDone);

/// Something to do at each reset(), defined beside the fake that it resets.
struct OnReset {
    explicit OnReset(void (*action)());
};

}  // namespace kinesta::fakes

/// What the platform gives for a registration.
@interface FakeToken : NSObject
@end
