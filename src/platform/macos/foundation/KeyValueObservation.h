#pragma once

#include <Foundation/Foundation.h>

#include <functional>

@class KinestaPropertyObserver;

namespace kinesta {

/// Follows one property of an object until this is destroyed. Keeps the object. For Objective-C++ files only; main
/// thread only.
class KeyValueObservation {
  public:
    /// Calls `changed` at once and after each change, always on the main thread. `key` names a property of the object
    /// itself: without dots, which would lead on to properties of its value.
    KeyValueObservation(NSObject* object, NSString* key, std::function<void()> changed);
    KeyValueObservation(const KeyValueObservation&) = delete;
    KeyValueObservation& operator=(const KeyValueObservation&) = delete;
    ~KeyValueObservation();

  private:
    NSObject* m_object;
    NSString* m_key;
    KinestaPropertyObserver* m_observer;
};

}  // namespace kinesta
