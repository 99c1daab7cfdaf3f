#include "cli/GestureReport.h"

#include <array>
#include <cstdio>

#include "cli/terminal/TextTable.h"
#include "rules/GestureDescription.h"
#include "support/Json.h"

namespace kinesta {
namespace {

double inSeconds(std::chrono::nanoseconds time) { return static_cast<double>(time.count()) / 1e9; }

struct AddFields {
    Json& line;

    void operator()(const DetectedTap& tap) const {
        line.set("gesture", rawValue(tap.gesture));
        line.set("fingers", tap.fingerCount);
    }
    void operator()(const DetectedEdgeSlide& slide) const {
        line.set("gesture", rawValue(GestureKind::edgeSlide));
        line.set("fingers", slide.fingerCount);
        line.set("side", rawValue(slide.side));
        line.set("steps", slide.steps);
    }
    void operator()(const DetectedAnchorDraw& draw) const {
        line.set("gesture", rawValue(GestureKind::anchorDraw));
        line.set("corner", rawValue(draw.corner));
        line.set("pattern", rawValue(draw.pattern));
    }
};

}  // namespace

std::string gestureAsJson(std::chrono::nanoseconds time, const DetectedGesture& gesture, const GestureRule* rule) {
    Json line{{"t", inSeconds(time)}};
    std::visit(AddFields{line}, gesture);
    line.set("rule", rule ? Json(rule->id.toString()) : Json(nullptr));
    line.set("action", rule ? Json(rawValue(rule->action.kind)) : Json(nullptr));
    return line.text();
}

std::string ruleInWords(const GestureRule& rule) { return printable(describeConsequence(rule)); }

std::string gestureForPeople(const Console& console, std::chrono::nanoseconds time, const DetectedGesture& gesture,
                             const GestureRule* rule) {
    std::array<char, 32> stamp{};
    std::snprintf(stamp.data(), stamp.size(), "%10.3f s  ", inSeconds(time));
    std::string text = describe(gesture);
    if (const auto* slide = std::get_if<DetectedEdgeSlide>(&gesture); slide && (slide->steps > 1 || slide->steps < -1))
        text += ", " + std::to_string(slide->steps > 0 ? slide->steps : -slide->steps) + " steps";
    return console.dim(stamp.data()) + console.bold(text) + "  →  " +
           (rule ? console.good(ruleInWords(*rule)) : console.dim("no rule"));
}

}  // namespace kinesta
