#include "platform/linux/windows/I3Layout.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

namespace kinesta {
namespace {

using Json = nlohmann::json;

/// The member, or null if there is none. Malformed parts of an answer are skipped this way.
const Json& member(const Json& object, const char* name) {
    static const Json null;
    const auto found = object.is_object() ? object.find(name) : object.end();
    return object.is_object() && found != object.end() ? *found : null;
}

int number(const Json& value) {
    // No screen is larger, and the limit keeps later arithmetic from overflowing.
    return value.is_number() ? static_cast<int>(std::clamp(value.get<double>(), -32767.0, 32767.0)) : 0;
}

WindowRectangle rectangle(const Json& value) {
    return {number(member(value, "x")), number(member(value, "y")), number(member(value, "width")),
            number(member(value, "height"))};
}

I3Place place(const Json& node, bool floats) {
    WindowRectangle frame = rectangle(member(node, "rect"));
    const WindowRectangle inside = rectangle(member(node, "window_rect"));
    const int titleHeight = rectangle(member(node, "deco_rect")).height;
    const WindowRectangle client{frame.x + inside.x, frame.y + inside.y, inside.width, inside.height};
    // i3 includes the title bar in a window's rectangle, sway does not.
    if (inside.y < titleHeight) {
        frame.y -= titleHeight;
        frame.height += titleHeight;
    }
    return {frame, client, floats};
}

}  // namespace

std::optional<std::map<EwmhWindowId, I3Place>> i3Places(const std::string& tree) {
    const Json root = Json::parse(tree, nullptr, false);
    if (!root.is_object())
        return std::nullopt;
    std::map<EwmhWindowId, I3Place> places;
    std::vector<std::pair<const Json*, bool>> nodes{{&root, false}};
    while (!nodes.empty()) {
        const auto [node, floats] = nodes.back();
        nodes.pop_back();
        if (const Json& window = member(*node, "window"); window.is_number_unsigned())
            places[window.get<EwmhWindowId>()] = place(*node, floats);
        // In i3 the floating node is a container of the window, in sway it is the window itself.
        for (const auto& [name, isFloating] : {std::pair{"nodes", floats}, std::pair{"floating_nodes", true}})
            if (const Json& children = member(*node, name); children.is_array())
                for (const Json& child : children)
                    nodes.emplace_back(&child, isFloating);
    }
    return places;
}

std::vector<WindowRectangle> i3WorkAreas(const std::string& workspaces) {
    std::vector<WindowRectangle> areas;
    const Json list = Json::parse(workspaces, nullptr, false);
    if (list.is_array())
        for (const Json& workspace : list)
            if (member(workspace, "visible") == true)
                areas.push_back(rectangle(member(workspace, "rect")));
    return areas;
}

bool i3Succeeded(const std::string& results) {
    const Json list = Json::parse(results, nullptr, false);
    return list.is_array() && !list.empty() &&
           std::all_of(list.begin(), list.end(), [](const Json& each) { return member(each, "success") == true; });
}

}  // namespace kinesta
