#include "actions/InProcessNotifications.h"

#include <string>
#include <utility>

namespace kinesta {

void InProcessNotifications::post(std::string_view name, ActionKind object) {
    m_observers.notify([] { return true; }, name, object);
}

Subscription InProcessNotifications::observe(std::string_view name, Observer observer) {
    return m_observers.add(
        [wanted = std::string(name), observer = std::move(observer)](std::string_view posted, ActionKind object) {
            if (posted == wanted)
                observer(object);
        });
}

}  // namespace kinesta
