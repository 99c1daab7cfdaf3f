#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "Stage.h"

namespace kinesta {

/// One picture: what is there, and what a person does before it is taken.
struct Scene {
    QString name;
    Setting setting;
    /// May open menus and questions, which do not return before they are closed.
    std::function<void(Stage&)> act = [](Stage&) {};
    /// Until everything has come to rest.
    int settleMilliseconds = 250;
};

/// All of them. `folder` holds the rule files.
std::vector<Scene> allScenes(const std::string& folder);

}  // namespace kinesta
