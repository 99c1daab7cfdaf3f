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
#include "support/CallLog.h"
#include "support/ManualClock.h"
#include "support/Text.h"

namespace kinesta::testing {

/// An element of a fake interface, described in lines. A line belongs to the nearest line above with less indentation:
///
///     AXFocusedWindow: window AXRole=AXWindow      the parent's attribute AXFocusedWindow, an element named "window"
///       - sheet AXRole=AXSheet                     a child
///       - ?                                        a child that is not an element
struct FakeNode {
    std::string name;
    std::map<std::string, std::string> words;
    std::map<std::string, std::shared_ptr<FakeNode>> elements;
    std::vector<std::shared_ptr<FakeNode>> children;

    std::optional<std::string> find(const std::string& key) const {
        const auto found = words.find(key);
        return found == words.end() ? std::nullopt : std::optional(found->second);
    }
    std::string word(const std::string& key) const { return find(key).value_or(""); }

    /// The tree of `lines`, below a root with `rootWords`.
    static std::shared_ptr<FakeNode> parse(const std::string& lines, const std::string& rootWords = "") {
        const auto root = node("application " + rootWords);
        std::vector<std::pair<std::size_t, std::shared_ptr<FakeNode>>> open;
        std::istringstream text(lines);
        for (std::string line; std::getline(text, line);) {
            const std::size_t indentation = line.find_first_not_of(' ');
            if (indentation == std::string::npos)
                continue;
            while (!open.empty() && open.back().first >= indentation)
                open.pop_back();
            FakeNode& parent = open.empty() ? *root : *open.back().second;
            const auto added = node(line.substr(indentation));
            if (line[indentation] == '-')
                parent.children.push_back(added->name == "?" ? nullptr : added);
            else
                parent.elements[line.substr(indentation, line.find(':') - indentation)] = added;
            open.emplace_back(indentation, added);
        }
        return root;
    }

  private:
    static std::shared_ptr<FakeNode> node(const std::string& line) {
        auto result = std::make_shared<FakeNode>();
        std::istringstream text(line);
        for (std::string word; text >> word;) {
            const std::size_t equals = word.find('=');
            if (equals == std::string::npos)
                result->name = word;
            else
                result->words[word.substr(0, equals)] = word.substr(equals + 1);
        }
        return result;
    }
};

/// The interface of application 7. A word "name=value" is an attribute: yes and no, text, "[]" an empty list, "*" a
/// value of another type, "!" an error. "@0.25" at the end is how many seconds reading takes; it fails if that exceeds
/// the messaging timeout. AXPress=no makes the action fail, timeout=no setting the timeout.
class FakeAccessibility final : public AccessibilityElements {
  public:
    FakeAccessibility(CallLog& log, ManualClock& clock) : m_log(log), m_clock(clock) {}

    /// Replaces the interface (see FakeNode); the root is the application's own element.
    void describe(const std::string& lines, const std::string& application = "") {
        m_root = FakeNode::parse(lines, application);
    }

    AccessibilityElementHandle applicationElement(ProcessIdentifier application) override {
        m_log.add("? application " + std::to_string(application));
        return m_root && application == 7 ? std::make_unique<Element>(*this, m_root) : nullptr;
    }

  private:
    class Element final : public AccessibilityElement {
      public:
        Element(FakeAccessibility& owner, std::shared_ptr<FakeNode> node) : m_owner(owner), m_node(std::move(node)) {}

        bool setMessagingTimeout(Seconds timeout) override {
            m_owner.m_log.add("? timeout " + numberText(timeout) + " of " + m_node->name);
            m_timeout = timeout;
            return m_node->word("timeout") != "no";
        }

        AccessibilityValue copyAttribute(std::string_view name) override {
            const std::string key(name);
            m_owner.m_log.add("? " + key + " of " + m_node->name);
            std::string word = m_node->word(key);
            if (const std::size_t at = word.find('@'); at != std::string::npos) {
                const Seconds delay = std::stod(word.substr(at + 1));
                m_owner.m_clock.advance(std::min(delay, m_timeout));
                if (delay > m_timeout)
                    return AccessibilityFailure{};
                word.resize(at);
            }
            if (const auto element = m_node->elements.find(key); element != m_node->elements.end())
                return std::make_unique<Element>(m_owner, element->second);
            if (key == "AXChildren" && word.empty() && !m_node->children.empty()) {
                AccessibilityList list;
                for (const auto& child : m_node->children)
                    list.items.push_back(child ? std::make_unique<Element>(m_owner, child) : nullptr);
                return list;
            }
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
            m_owner.m_log.add(std::string(action) + ' ' + m_node->name);
            return m_node->word(std::string(action)) != "no";
        }

      private:
        FakeAccessibility& m_owner;
        std::shared_ptr<FakeNode> m_node;
        Seconds m_timeout = 6;  // until one is set
    };

    CallLog& m_log;
    ManualClock& m_clock;
    std::shared_ptr<FakeNode> m_root;
};

/// A menu bar with the children of `bar` as items; no menu bar if that is null. Words: identifier, action, enabled=no
/// or enabled=updated (enabled once a menu was updated), taken=no.
class FakeOwnMenus final : public OwnMenus {
  public:
    explicit FakeOwnMenus(CallLog& log) : m_log(log) {}

    std::shared_ptr<FakeNode> bar;

    std::unique_ptr<OwnMenu> mainMenu() override {
        m_isUpdated = false;
        return bar ? std::make_unique<Node>(*this, bar) : nullptr;
    }

  private:
    struct Node final : OwnMenuItem, OwnMenu {
        Node(FakeOwnMenus& menus, std::shared_ptr<FakeNode> entry) : owner(menus), node(std::move(entry)) {}
        std::optional<std::string> identifier() override { return node->find("identifier"); }
        std::optional<std::string> actionName() override { return node->find("action"); }
        bool isEnabled() override {
            return !node->find("enabled") || (node->word("enabled") == "updated" && owner.m_isUpdated);
        }
        std::unique_ptr<OwnMenu> submenu() override {
            return node->children.empty() ? nullptr : std::make_unique<Node>(owner, node);
        }
        bool sendAction() override {
            owner.m_log.add("send " + node->word("action"));
            return node->word("taken") != "no";
        }
        void update() override {
            owner.m_log.add("? update menu");
            owner.m_isUpdated = true;
        }
        std::vector<std::unique_ptr<OwnMenuItem>> items() override {
            std::vector<std::unique_ptr<OwnMenuItem>> result;
            for (const auto& child : node->children)
                result.push_back(std::make_unique<Node>(owner, child));
            return result;
        }
        FakeOwnMenus& owner;
        std::shared_ptr<FakeNode> node;
    };

    CallLog& m_log;
    bool m_isUpdated = false;
};

}  // namespace kinesta::testing
