#pragma once

namespace kinesta::testing {

/// Whether a sanitizer watches the programs and the tests. They are slow then, and hold on to freed memory.
#if defined(KINESTA_SANITIZED)
inline constexpr bool kIsSanitized = true;
#else
inline constexpr bool kIsSanitized = false;
#endif

}  // namespace kinesta::testing
