#include "app/AppAppearance.h"

#include <array>

#include "support/Translation.h"

namespace kinesta {

template <>
std::span<const EnumRow<AppAppearance>> enumTable<AppAppearance>() {
    using enum AppAppearance;
    static constexpr std::array<EnumRow<AppAppearance>, 3> kTable{{
        {system, "system", TRANSLATABLE("System")},
        {light, "light", TRANSLATABLE("Light")},
        {dark, "dark", TRANSLATABLE("Dark")},
    }};
    return kTable;
}

AppAppearance AppAppearances::stored(const UserDefaults& defaults) {
    const auto raw = defaults.string(storageKey);
    return (raw ? fromRawValue<AppAppearance>(*raw) : std::nullopt).value_or(AppAppearance::system);
}

std::string_view AppAppearances::symbol(AppAppearance appearance) {
    switch (appearance) {
        case AppAppearance::system:
            return "circle.lefthalf.filled";
        case AppAppearance::light:
            return "sun.max";
        case AppAppearance::dark:
            return "moon";
    }
    return {};
}

std::optional<NamedAppearance> AppAppearances::ns(AppAppearance appearance) {
    switch (appearance) {
        case AppAppearance::system:
            break;
        case AppAppearance::light:
            return NamedAppearance::aqua;
        case AppAppearance::dark:
            return NamedAppearance::darkAqua;
    }
    return std::nullopt;
}

}  // namespace kinesta
