#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "actions/AccessibilityElements.h"
#include "actions/OwnMenus.h"
#include "actions/OwnWindows.h"
#include "support/CallLog.h"
#include "support/Text.h"
#include "support/VirtualClock.h"

namespace kinesta::testing {

/// What all fakes of a desktop share.
struct FakeWorld {
    void advance(Seconds duration) { time.advanceTo(time.now() + wholeNanoseconds(duration)); }

    CallLog log;
    VirtualMainThread time{std::chrono::seconds(1024)};
    VirtualClock clock{time};
    bool areMenusUpdated = false;
};

/// An element of a fake interface, described in lines. A line belongs to the nearest line above with less indentation:
///
///     AXFocusedWindow: window AXRole=AXWindow      the parent's attribute AXFocusedWindow, an element named "window"
///       - sheet AXRole=AXSheet                     a child
///       - ?                                        a child that is not an element
struct FakeNode {
    std::string name;
    std::map<std::string, std::string> words;
    /// By attribute; the children by "-", in their order.
    std::multimap<std::string, std::shared_ptr<FakeNode>> parts;

    explicit FakeNode(const std::string& line) {
        std::istringstream text(line);
        for (std::string word; text >> word;)
            if (const std::size_t equals = word.find('='); equals == std::string::npos)
                name = word;
            else
                words[word.substr(0, equals)] = word.substr(equals + 1);
    }

    /// The tree of `lines`, below a root with `rootWords`.
    static std::shared_ptr<FakeNode> parse(const std::string& lines, const std::string& rootWords = "") {
        const auto root = std::make_shared<FakeNode>("application " + rootWords);
        std::map<std::size_t, std::shared_ptr<FakeNode>> open;  // by indentation
        std::istringstream text(lines);
        for (std::string line; std::getline(text, line);) {
            const std::size_t start = line.find_first_not_of(' ');
            if (start == std::string::npos)
                continue;
            open.erase(open.lower_bound(start), open.end());
            auto& parent = open.empty() ? *root : *open.rbegin()->second;
            open[start] = std::make_shared<FakeNode>(line.substr(start));
            parent.parts.emplace(line.substr(start, line.find_first_of(": ", start) - start), open[start]);
        }
        return root;
    }

    std::optional<std::string> find(const std::string& key) const {
        const auto found = words.find(key);
        return found == words.end() ? std::nullopt : std::optional(found->second);
    }
    std::string word(const std::string& key) const { return find(key).value_or(""); }
};

/// What a node stands for.
///
/// In another application: a word "name=value" is an attribute: yes and no, text, "[]" an empty list, "*" a value of
/// another type, "!" an error. "@0.25" at the end is how many seconds reading takes; it fails if that exceeds the
/// messaging timeout. AXPress=no makes the action fail, timeout=no setting the timeout.
///
/// In a menu of this process the words are identifier, action, enabled=no or enabled=updated (enabled once a menu was
/// updated) and taken=no. The name of a window of this process says what is true of it: "panel", "miniaturized",
/// "sheet", and "button" for an enabled close button.
class FakeElement final : public AccessibilityElement, public OwnMenuItem, public OwnMenu, public OwnWindow {
  public:
    FakeElement(FakeWorld& world, std::shared_ptr<FakeNode> node) : m_world(world), m_node(std::move(node)) {}

    bool setMessagingTimeout(Seconds timeout) override {
        m_world.log.add("? timeout " + numberText(timeout) + " of " + m_node->name);
        m_timeout = timeout;
        return m_node->word("timeout") != "no";
    }
    AccessibilityValue copyAttribute(std::string_view name) override {
        const std::string key(name);
        m_world.log.add("? " + key + " of " + m_node->name);
        std::string word = m_node->word(key);
        if (const std::size_t at = word.find('@'); at != std::string::npos) {
            const Seconds delay = std::stod(word.substr(at + 1));
            m_world.advance(std::min(delay, m_timeout));
            if (delay > m_timeout)
                return AccessibilityFailure{};
            word.resize(at);
        }
        if (const auto part = m_node->parts.find(key); part != m_node->parts.end())
            return std::make_unique<FakeElement>(m_world, part->second);
        if (key == "AXChildren" && word.empty() && m_node->parts.contains("-"))
            return AccessibilityList{children<AccessibilityElement>()};
        if (word == "!" || word.empty())
            return AccessibilityFailure{};
        if (word == "[]")
            return AccessibilityList{};
        if (word == "*")
            return OtherAccessibilityValue{};
        if (word == "yes" || word == "no")
            return word == "yes";
        return word;
    }
    bool performAction(std::string_view action) override {
        m_world.log.add(std::string(action) + ' ' + m_node->name);
        return m_node->word(std::string(action)) != "no";
    }

    std::optional<std::string> identifier() override { return m_node->find("identifier"); }
    std::optional<std::string> actionName() override { return m_node->find("action"); }
    bool isEnabled() override {
        return !m_node->find("enabled") || (m_node->word("enabled") == "updated" && m_world.areMenusUpdated);
    }
    std::unique_ptr<OwnMenu> submenu() override {
        return m_node->parts.empty() ? nullptr : std::make_unique<FakeElement>(m_world, m_node);
    }
    bool sendAction() override {
        m_world.log.add("send " + m_node->word("action"));
        return m_node->word("taken") != "no";
    }
    void update() override {
        m_world.log.add("? update menu");
        m_world.areMenusUpdated = true;
    }
    std::vector<std::unique_ptr<OwnMenuItem>> items() override { return children<OwnMenuItem>(); }

    bool isPanel() override { return is("panel"); }
    bool isMiniaturized() override { return is("miniaturized"); }
    bool hasAttachedSheet() override { return is("sheet"); }
    bool isCloseButtonEnabled() override { return is("button"); }
    void performClose() override { m_world.log.add("close own " + m_node->name); }

  private:
    bool is(const char* word) const { return m_node->name.find(word) != std::string::npos; }
    template <typename Child>
    std::vector<std::unique_ptr<Child>> children() const {
        std::vector<std::unique_ptr<Child>> result;
        for (auto [child, end] = m_node->parts.equal_range("-"); child != end; ++child)
            result.push_back(child->second->name == "?" ? nullptr
                                                        : std::make_unique<FakeElement>(m_world, child->second));
        return result;
    }

    FakeWorld& m_world;
    std::shared_ptr<FakeNode> m_node;
    Seconds m_timeout = 6;  // until one is set
};

}  // namespace kinesta::testing
