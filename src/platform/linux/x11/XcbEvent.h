#pragma once

#include <xcb/xcb.h>

namespace kinesta {

/// An event as the kind that its `response_type` names. The caller has looked at that.
template <typename Event>
const Event& eventAs(const xcb_generic_event_t& event) {
    return reinterpret_cast<const Event&>(event);
}

}  // namespace kinesta
