#pragma once

#include "ui/WindowCommands.h"

namespace kinesta::testing {

/// The window around a page, without effect.
struct NoCommands : WindowCommands {
    void select(const WindowSelection& /*selection*/) override {}
    void addRule() override {}
    void addRuleForLastGesture() override {}
    void tryGesture() override {}
    void runAction(const Uuid& /*rule*/) override {}
    void deleteRules() override {}
    void importRules() override {}
    void exportRules() override {}
    void resetSettings() override {}
    void showAbout() override {}
    void copyReport() override {}
    void showToast(const QString& /*text*/, const QString& /*action*/, std::function<void()> /*onAction*/) override {}
    void undo() override {}
};

}  // namespace kinesta::testing
