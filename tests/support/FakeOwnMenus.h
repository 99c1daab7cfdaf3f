#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "actions/OwnMenus.h"
#include "support/CallLog.h"
#include "support/FakeTree.h"

namespace kinesta::testing {

/// A menu bar whose items are the children of `bar`; none while that is null. Words: identifier, action, enabled=no or
/// enabled=updated (only once a menu was updated), taken=no.
class FakeOwnMenus final : public OwnMenus {
  public:
    explicit FakeOwnMenus(CallLog& log) : m_log(log) {}

    std::shared_ptr<FakeNode> bar;

    std::unique_ptr<OwnMenu> mainMenu() override {
        m_isUpdated = false;
        return bar ? std::make_unique<Menu>(*this, bar) : nullptr;
    }

  private:
    struct Item final : OwnMenuItem {
        Item(FakeOwnMenus& menus, std::shared_ptr<FakeNode> entry) : owner(menus), node(std::move(entry)) {}
        std::optional<std::string> identifier() override { return optionalWord("identifier"); }
        std::optional<std::string> actionName() override { return optionalWord("action"); }
        bool isEnabled() override {
            const std::string enabled = node->word("enabled");
            return enabled.empty() || (enabled == "updated" && owner.m_isUpdated);
        }
        std::unique_ptr<OwnMenu> submenu() override {
            return node->children.empty() ? nullptr : std::make_unique<Menu>(owner, node);
        }
        bool sendAction() override {
            owner.m_log.add("send " + node->word("action"));
            return node->word("taken") != "no";
        }
        std::optional<std::string> optionalWord(const std::string& key) const {
            return node->words.contains(key) ? std::optional(node->word(key)) : std::nullopt;
        }
        FakeOwnMenus& owner;
        std::shared_ptr<FakeNode> node;
    };

    struct Menu final : OwnMenu {
        Menu(FakeOwnMenus& menus, std::shared_ptr<FakeNode> entry) : owner(menus), node(std::move(entry)) {}
        void update() override {
            owner.m_log.add("? update menu");
            owner.m_isUpdated = true;
        }
        std::vector<std::unique_ptr<OwnMenuItem>> items() override {
            std::vector<std::unique_ptr<OwnMenuItem>> result;
            for (const auto& child : node->children)
                result.push_back(std::make_unique<Item>(owner, child));
            return result;
        }
        FakeOwnMenus& owner;
        std::shared_ptr<FakeNode> node;
    };

    CallLog& m_log;
    bool m_isUpdated = false;
};

}  // namespace kinesta::testing
