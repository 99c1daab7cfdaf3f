#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "rules/GestureRule.h"

namespace kinesta {

/// An enabled, ready rule for a tap or the like that clicks the middle button.
inline GestureRule makeRule(GestureKind gesture, std::optional<std::int64_t> fingers = std::nullopt,
                            ActionKind action = ActionKind::middleClick) {
    GestureRule rule;
    rule.id = Uuid::random();
    rule.isEnabled = true;
    rule.gesture = gesture;
    rule.fingerCount = fingers;
    rule.action.kind = action;
    return rule;
}

inline GestureRule makeSlide(std::optional<std::int64_t> fingers, std::optional<EdgeSlideSide> side) {
    GestureRule rule = makeRule(GestureKind::edgeSlide, fingers, ActionKind::adjustVolume);
    rule.edgeSlideSide = side;
    return rule;
}

inline GestureRule makeDrawing(std::optional<AnchorCorner> corner, std::optional<DrawPattern> pattern) {
    GestureRule rule = makeRule(GestureKind::anchorDraw);
    rule.anchorCorner = corner;
    rule.drawPattern = pattern;
    return rule;
}

inline GestureRule makeShellCommand(std::optional<bool> acknowledged) {
    GestureRule rule = makeRule(GestureKind::singleTap, 3, ActionKind::shellCommand);
    rule.action.value = "ls";
    rule.action.shellCommandAcknowledged = acknowledged;
    return rule;
}

inline GestureRule disabled(GestureRule rule) {
    rule.isEnabled = false;
    return rule;
}

/// Random rules, the same ones for the same seed.
class RandomRules {
  public:
    explicit RandomRules(std::uint32_t seed) : m_random(seed) {}

    std::vector<GestureRule> list(std::size_t length) {
        std::vector<GestureRule> rules(length);
        std::ranges::generate(rules, [this] { return next(); });
        return rules;
    }

  private:
    GestureRule next() {
        GestureRule rule;
        for (std::uint8_t& byte : rule.id.bytes)
            byte = static_cast<std::uint8_t>(below(256));
        rule.name = text();
        rule.isEnabled = below(4) != 0;
        rule.fingerCount = maybe([&] { return std::int64_t{2} + below(2); });
        rule.gesture = anyOf<GestureKind>();
        rule.edgeSlideSide = maybe([&] { return anyOf<EdgeSlideSide>(); });
        rule.anchorCorner = maybe([&] { return anyOf<AnchorCorner>(); });
        rule.drawPattern = maybe([&] { return anyOf<DrawPattern>(); });
        rule.showsActionCue = maybe([&] { return below(2) == 0; });
        rule.action.kind = anyOf<ActionKind>();
        rule.action.keyCode = maybe([&] { return static_cast<std::uint16_t>(below(65536)); });
        rule.action.modifiers.rawValue = std::int64_t{below(64)} - 32;
        rule.action.value = text();
        rule.action.applicationArguments = maybe([&] { return std::vector<std::string>(below(3), text()); });
        rule.action.customCueLabel = maybe([&] { return text(); });
        rule.action.shellCommandAcknowledged = maybe([&] { return below(2) == 0; });
        return rule;
    }

    std::uint32_t below(std::uint32_t bound) {
        return std::uniform_int_distribution<std::uint32_t>(0, bound - 1)(m_random);
    }

    template <typename Make>
    auto maybe(Make make) -> std::optional<decltype(make())> {
        return below(3) == 0 ? std::nullopt : std::optional(make());
    }

    template <typename E>
    E anyOf() {
        return static_cast<E>(below(static_cast<std::uint32_t>(enumTable<E>().size())));
    }

    std::string text() {
        static const std::vector<std::string> kPieces{
            "",     " ",    "a", "\"", "\\", "/",      "\n",    std::string(1, '\0'),
            "\x1b", "\x7f", "ü", "→",  "😀",  "\u2028", "\uFFFF"};
        std::string result;
        for (std::uint32_t pieces = below(4); pieces > 0; --pieces)
            result += kPieces[below(static_cast<std::uint32_t>(kPieces.size()))];
        return result;
    }

    std::mt19937 m_random;
};

}  // namespace kinesta
