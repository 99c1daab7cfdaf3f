#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "actions/OwnMenus.h"
#include "support/CallLog.h"
#include "support/FakeTree.h"

namespace kinesta::testing {

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
