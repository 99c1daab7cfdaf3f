#pragma once

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>

#include "actions/AccessibilityElements.h"
#include "support/CallLog.h"
#include "support/FakeTree.h"
#include "support/ManualClock.h"

namespace kinesta::testing {

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
            std::ostringstream call;
            call << "? timeout " << timeout << " of " << m_node->name;
            m_owner.m_log.add(call.str());
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

}  // namespace kinesta::testing
