#pragma once

namespace kinesta::AccessibleParts {

/// Lets screen readers know our own widgets as what they are. Every widget that needs it calls this; the first call
/// counts.
void install();

}  // namespace kinesta::AccessibleParts
