#pragma once

#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

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

}  // namespace kinesta::testing
