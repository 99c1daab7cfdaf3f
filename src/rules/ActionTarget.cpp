#include "rules/ActionTarget.h"

namespace kinesta {

std::string_view hostOf(std::string_view address) {
    const auto scheme = address.find("://");
    if (scheme == std::string_view::npos)
        return address;
    std::string_view host = address.substr(scheme + 3);
    host = host.substr(0, host.find_first_of("/?#\\"));
    if (const auto user = host.rfind('@'); user != std::string_view::npos)
        host.remove_prefix(user + 1);
    // The colons within the brackets of an IPv6 address begin no port.
    const auto bracket = host.find(']');
    if (const auto port = host.find(':', bracket == std::string_view::npos ? 0 : bracket);
        port != std::string_view::npos)
        host = host.substr(0, port);
    return host.empty() ? address : host;
}

std::string_view lastPart(std::string_view path) {
    const auto end = path.find_last_not_of('/');
    if (end == std::string_view::npos)
        return path;
    path = path.substr(0, end + 1);
    return path.substr(path.rfind('/') + 1);  // all of it if there is no slash
}

std::string_view applicationName(std::string_view path) {
    std::string_view name = lastPart(path);
    for (const std::string_view ending : {".app", ".desktop"}) {
        if (!name.ends_with(ending) || name.size() == ending.size())
            continue;
        name.remove_suffix(ending.size());
        // Two dots make a name in reverse domain notation; one may belong to a version.
        const auto last = name.rfind('.');
        if (ending == ".desktop" && last != std::string_view::npos && last + 1 < name.size() && name.find('.') != last)
            name.remove_prefix(last + 1);
        break;
    }
    return name;
}

}  // namespace kinesta
