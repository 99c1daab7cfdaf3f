#pragma once

#include "rules/Uuid.h"

namespace kinesta {

/// What the window shows beside the sidebar.
struct WindowSelection {
    enum class Kind { nothing, overview, settings, rule };

    Kind kind = Kind::nothing;
    /// All zero unless a rule is selected.
    Uuid ruleId;

    static WindowSelection overview() { return {Kind::overview, {}}; }
    static WindowSelection settings() { return {Kind::settings, {}}; }
    static WindowSelection rule(const Uuid& id) { return {Kind::rule, id}; }

    friend bool operator==(const WindowSelection&, const WindowSelection&) = default;
};

}  // namespace kinesta
