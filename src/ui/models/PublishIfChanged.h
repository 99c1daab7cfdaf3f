#pragma once

#include <utility>

#include "support/Published.h"

namespace kinesta {

/// Stores and publishes a value that differs from the present one.
template <typename T>
void publishIfChanged(Published<T>& published, T value) {
    if (!(value == published.value()))
        published.set(std::move(value));
}

}  // namespace kinesta
