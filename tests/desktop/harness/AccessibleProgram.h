#pragma once

#include <gtest/gtest.h>
#include <systemd/sd-bus.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "desktop/harness/ChildProcess.h"

namespace kinesta::testing {

/// A program as screen readers see it, and a hand that points and types. Asks the accessibility bus itself.
class AccessibleProgram {
  public:
    enum State { active = 1, checked = 4, enabled = 8, focusable = 11, focused = 12, selected = 23, showing = 25 };

    struct Node {
        std::string bus;
        std::string path;
        std::string role{};
        std::string name{};
        std::uint64_t states = 0;

        bool has(State state) const { return (states >> state & 1U) != 0; }
    };

    /// Waits until the program is on the accessibility bus.
    explicit AccessibleProgram(const std::string& name) {
        const std::string address =
            ChildProcess("busctl --user --json=short call org.a11y.Bus /org/a11y/bus org.a11y.Bus GetAddress")
                .readLine()
                .value_or("");
        const std::size_t begin = address.find("unix:");
        EXPECT_NE(begin, std::string::npos) << address;
        sd_bus_new(&m_bus);
        sd_bus_set_address(m_bus, address.substr(begin, address.find('"', begin) - begin).c_str());
        sd_bus_set_bus_client(m_bus, 1);
        EXPECT_GE(sd_bus_start(m_bus), 0);
        EXPECT_TRUE(eventually([&] {
            for (const Node& program : children({"org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"}))
                if (program.name == name)
                    m_program = program;
            return !m_program.bus.empty();
        }));
    }
    ~AccessibleProgram() {
        sd_bus_slot_unref(m_listening);
        sd_bus_flush_close_unref(m_bus);
    }
    AccessibleProgram(const AccessibleProgram&) = delete;
    AccessibleProgram& operator=(const AccessibleProgram&) = delete;

    /// What is on the screen with this role and name; waits for it. Without it the test cannot go on.
    Node await(const std::string& role, const std::string& name) const {
        std::optional<Node> found;
        if (!eventually([&] { return (found = find(role, name)).has_value(); }))
            throw std::runtime_error("no " + role + " “" + name + "” among:\n" + outline());
        return *found;
    }
    bool awaitGone(const std::string& role, const std::string& name) const {
        return eventually([&] { return !find(role, name); });
    }
    std::optional<Node> find(const std::string& role, const std::string& name) const {
        return search(m_program, [&](const Node& node) { return node.role == role && node.name == name; });
    }
    /// Waits until the node is, or is not, in this state.
    bool becomes(const Node& node, State state, bool wanted = true) const {
        return eventually([&] { return read(node.bus, node.path).has(state) == wanted; });
    }
    /// Waits for a combo box with this label; its own name is its text.
    Node awaitCombo(const std::string& label) const {
        const Node title = await("label", label);
        std::optional<Node> found;
        EXPECT_TRUE(eventually([&] {
            return (found = search(m_program,
                                   [&](const Node& node) { return node.role == "combo box" && hasLabel(node, title); }))
                .has_value();
        })) << label;
        return found.value_or(Node{});
    }
    /// What has the keyboard focus. Qt also calls focused what passes the focus on to its child, and the current row of
    /// a list wherever the focus is.
    std::optional<Node> focus() const {
        return search(m_program, [](const Node& node) {
            return node.has(focused) && node.role != "filler" && node.role != "list item";
        });
    }
    /// What Tab must reach in there: of a group of radio buttons the chosen one or else the first, of a list the list.
    std::vector<Node> tabStops(const Node& from) const {
        std::vector<Node> all;
        const auto nodes = children(from);
        const bool isChosen = std::ranges::any_of(nodes, [](const Node& node) { return node.has(checked); });
        bool hasRadio = false;
        for (const Node& node : nodes) {
            if (!node.has(showing))
                continue;
            const bool isRadio = node.role == "radio button";
            if (node.has(focusable) && node.has(enabled) && node.role != "list item" &&
                (!isRadio || (isChosen ? node.has(checked) : !hasRadio)))
                all.push_back(node);
            hasRadio = hasRadio || isRadio;
            const auto below = tabStops(node);
            all.insert(all.end(), below.begin(), below.end());
        }
        return all;
    }
    /// Presses the key and waits until the focus moves away. Returns where it then is. Needs listen().
    Node moveFocus(const Node& from, const std::string& key) {
        press(key);
        Node at = from;
        if (!eventually([&] {
                hear();
                if (!m_focused.empty())
                    at = read(m_program.bus, std::exchange(m_focused, {}));
                if (at.role == "list item")
                    at = focus().value_or(from);
                return at.path != from.path;
            }))
            throw std::runtime_error("the focus stays at " + from.role + " " + from.name);
        return at;
    }
    /// Presses the key until the focus is there.
    ::testing::AssertionResult tabTo(const std::string& role, const std::string& name,
                                     const std::string& key = "Tab") const {
        std::string passed;
        for (int stop = 0; stop < 40; ++stop) {
            const Node before = focus().value_or(Node{});
            if (before.role == role && before.name == name)
                return ::testing::AssertionSuccess();
            passed += before.role + " " + before.name + "\n";
            press(key);
            if (!eventually([&] { return focus().value_or(before).path != before.path; }))
                return ::testing::AssertionFailure() << "stays in " << passed;
        }
        return ::testing::AssertionFailure() << role << " " << name << " not among\n" << passed;
    }

    /// Begins to note where the focus goes, and the notifications that appear, which screen readers say wherever it is.
    void listen() {
        EXPECT_GE(sd_bus_match_signal(m_bus, &m_listening, m_program.bus.c_str(), nullptr,
                                      "org.a11y.atspi.Event.Object", "StateChanged", &noteState, this),
                  0);
        EXPECT_GE(
            sd_bus_call_method(m_bus, "org.a11y.atspi.Registry", "/org/a11y/atspi/registry", "org.a11y.atspi.Registry",
                               "RegisterEvent", nullptr, nullptr, "sass", "object:state-changed", 0, ""),
            0);
    }
    /// Waits until a notification with this text appears. Those before it are forgotten.
    ::testing::AssertionResult says(const std::string& text) {
        auto said = m_said.end();
        const bool isSaid = eventually([&] {
            hear();
            said = std::ranges::find(m_said, text);
            return said != m_said.end();
        });
        if (!isSaid)
            return ::testing::AssertionFailure() << ::testing::PrintToString(m_said) << " without " << text;
        m_said.erase(m_said.begin(), said + 1);
        return ::testing::AssertionSuccess();
    }

    /// Every part that is on the screen, an indented line each.
    std::string outline() const {
        std::string text;
        outline(m_program, 0, text);
        return text;
    }

    std::vector<Node> children(const Node& node) const {
        std::vector<Node> nodes;
        const auto reply = call(node, "org.a11y.atspi.Accessible", "GetChildren");
        if (reply && sd_bus_message_enter_container(reply.get(), 'a', "(so)") >= 0) {
            const char* bus = nullptr;
            const char* path = nullptr;
            while (sd_bus_message_read(reply.get(), "(so)", &bus, &path) > 0)
                nodes.push_back(read(bus, path));
        }
        return nodes;
    }

    /// The text of a field.
    std::string text(const Node& node) const {
        const auto reply = call(node, "org.a11y.atspi.Text", "GetText", 0, -1);
        const char* text = "";
        if (reply)
            sd_bus_message_read(reply.get(), "s", &text);
        return text;
    }
    double value(const Node& node) const {
        double value = 0;
        sd_bus_get_property_trivial(m_bus, node.bus.c_str(), node.path.c_str(), "org.a11y.atspi.Value", "CurrentValue",
                                    nullptr, 'd', &value);
        return value;
    }
    std::string description(const Node& node) const { return property(node.bus, node.path, "Description"); }

    /// The middle of the node on the screen.
    std::tuple<int, int> middle(const Node& node) const {
        const auto reply = call(node, "org.a11y.atspi.Component", "GetExtents", std::uint32_t{0});
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
        if (reply)
            sd_bus_message_read(reply.get(), "(iiii)", &x, &y, &width, &height);
        return {x + width / 2, y + height / 2};
    }
    /// Where the node rests once the page has been laid out, and scrolled to it if need be. The page fills the screen.
    std::tuple<int, int> reveal(const Node& node) const {
        std::tuple<int, int> place;
        const bool isThere = eventually([&] {
            if (std::exchange(place, middle(node)) != place)
                return false;
            const int y = std::get<1>(place);
            if (y > kTop && y < kBottom)
                return true;
            hand("mousemove 1240 400 click " + std::string(y > kTop ? "5" : "4"));
            return false;
        });
        if (!isThere)
            throw std::runtime_error("cannot reach " + node.name);
        return place;
    }
    /// A real click, or another act of the hand at the node.
    void click(const Node& node, int button = 1) const { handAt(node, "click " + std::to_string(button)); }
    void handAt(const Node& node, const std::string& act) const {
        const auto [x, y] = reveal(node);
        hand("mousemove " + std::to_string(x) + " " + std::to_string(y) + " " + act);
    }
    void click(const std::string& role, const std::string& name) const { click(await(role, name)); }
    static void press(const std::string& keys) { hand("key " + keys); }
    static void type(const std::string& text) { hand("type --delay 2 -- '" + text + "'"); }
    static void hand(const std::string& act) { EXPECT_TRUE(run("xdotool " + act)) << act; }

  private:
    static constexpr int kTop = 20;
    static constexpr int kBottom = 780;

    struct Unref {
        void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
    };
    using Message = std::unique_ptr<sd_bus_message, Unref>;

    bool hasLabel(const Node& node, const Node& label) const {
        constexpr std::uint32_t kLabelledBy = 2;
        const auto reply = call(node, "org.a11y.atspi.Accessible", "GetRelationSet");
        bool has = false;
        if (!reply || sd_bus_message_enter_container(reply.get(), 'a', "(ua(so))") < 0)
            return false;
        while (sd_bus_message_enter_container(reply.get(), 'r', "ua(so)") > 0) {
            std::uint32_t relation = 0;
            const char* bus = nullptr;
            const char* path = nullptr;
            sd_bus_message_read(reply.get(), "u", &relation);
            sd_bus_message_enter_container(reply.get(), 'a', "(so)");
            while (sd_bus_message_read(reply.get(), "(so)", &bus, &path) > 0)
                has = has || (relation == kLabelledBy && path == label.path);
            sd_bus_message_exit_container(reply.get());
            sd_bus_message_exit_container(reply.get());
        }
        return has;
    }
    static std::string types() { return {}; }
    static std::string types(std::uint32_t) { return "u"; }
    static std::string types(int, int) { return "ii"; }

    template <typename... Arguments>
    Message call(const Node& node, const char* interface, const char* member, Arguments... arguments) const {
        sd_bus_message* reply = nullptr;
        sd_bus_call_method(m_bus, node.bus.c_str(), node.path.c_str(), interface, member, nullptr, &reply,
                           types(arguments...).c_str(), arguments...);
        return Message(reply);
    }
    std::string property(const std::string& bus, const std::string& path, const char* name) const {
        char* text = nullptr;
        sd_bus_get_property_string(m_bus, bus.c_str(), path.c_str(), "org.a11y.atspi.Accessible", name, nullptr, &text);
        const std::unique_ptr<char, decltype(&::free)> owned(text, &::free);
        return text == nullptr ? "" : text;
    }
    void hear() const {
        while (sd_bus_process(m_bus, nullptr) > 0) {
        }
    }
    static int noteState(sd_bus_message* signal, void* self, sd_bus_error* /*error*/) {
        const char* name = "";
        int isSo = 0;
        sd_bus_message_read(signal, "si", &name, &isSo);
        auto& program = *static_cast<AccessibleProgram*>(self);
        const std::string_view state = isSo != 0 ? name : "";
        if (state == "focused")
            program.m_focused = sd_bus_message_get_path(signal);
        if (state != "showing")
            return 0;
        const Node node = program.read(sd_bus_message_get_sender(signal), sd_bus_message_get_path(signal));
        if (node.role == "notification")
            program.m_said.push_back(node.name);
        return 0;
    }
    Node read(const std::string& bus, const std::string& path) const {
        Node node{bus, path, {}, property(bus, path, "Name")};
        const char* role = "";
        const auto named = call(node, "org.a11y.atspi.Accessible", "GetRoleName");
        if (named)
            sd_bus_message_read(named.get(), "s", &role);
        node.role = role;
        const auto states = call(node, "org.a11y.atspi.Accessible", "GetState");
        std::uint32_t low = 0;
        std::uint32_t high = 0;
        if (states)
            sd_bus_message_read(states.get(), "au", 2, &low, &high);
        node.states = std::uint64_t{high} << 32U | low;
        return node;
    }
    std::optional<Node> search(const Node& from, const std::function<bool(const Node&)>& fits) const {
        for (const Node& child : children(from)) {
            if (!child.has(showing))
                continue;
            if (fits(child))
                return child;
            if (auto found = search(child, fits))
                return found;
        }
        return std::nullopt;
    }
    void outline(const Node& from, int depth, std::string& text) const {
        for (const Node& child : children(from)) {
            if (!child.has(showing))
                continue;
            text += std::string(static_cast<std::size_t>(2 * depth), ' ') + child.role + " “" + child.name + "”" +
                    (child.has(focused) ? " *" : "") + "\n";
            outline(child, depth + 1, text);
        }
    }

    sd_bus* m_bus = nullptr;
    sd_bus_slot* m_listening = nullptr;
    std::string m_focused;
    std::vector<std::string> m_said;
    Node m_program;
};

}  // namespace kinesta::testing
