#pragma once

#include <optional>
#include <string_view>

#include "support/EnumTable.h"
#include "support/UserDefaults.h"

namespace kinesta {

/// Light or dark, as the person wants the windows of the application.
enum class AppAppearance { system, light, dark };

template <>
std::span<const EnumRow<AppAppearance>> enumTable<AppAppearance>();

/// An appearance that the platform can force.
enum class NamedAppearance { aqua, darkAqua };

namespace AppAppearances {

inline constexpr std::string_view storageKey = "appAppearance.v1";

/// The stored preference; system if it is absent or unknown.
AppAppearance stored(const UserDefaults& defaults);

/// The name of the symbol beside the title.
std::string_view symbol(AppAppearance appearance);

/// The appearance to force; nothing to follow the system.
std::optional<NamedAppearance> ns(AppAppearance appearance);

}  // namespace AppAppearances

}  // namespace kinesta
