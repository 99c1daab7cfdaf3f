#pragma once

#include <utility>

#include "support/Published.h"

namespace kinesta {

/// Stores and publishes a value that differs from the present one.
template <typename T, typename U = T>
void publishIfChanged(Published<T>& published, U&& value) {
    if (!(value == published.value()))
        published.set(std::forward<U>(value));
}

}  // namespace kinesta
