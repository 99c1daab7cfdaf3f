#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <memory>
#include <type_traits>

namespace kinesta {

struct CfRelease {
    void operator()(CFTypeRef object) const { CFRelease(object); }
};

/// Owns one reference to a C object of the system, such as CGEventRef: what a function with Create or Copy in its name
/// returned, which may be null. What a function with Get in its name returned has to be retained first.
template <typename Reference>
using CfReference = std::unique_ptr<std::remove_pointer_t<Reference>, CfRelease>;

/// A second reference to an object that someone else owns. Null for null.
template <typename Reference>
CfReference<Reference> retained(Reference object) {
    if (object)
        CFRetain(object);
    return CfReference<Reference>(object);
}

}  // namespace kinesta
