#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "rules/GestureRuleCoding.h"
#include "rules/RuleSelection.h"

namespace kinesta {
namespace {

/// Enabled rules that are ready; none matches a five-finger tap.
std::vector<GestureRule> rules(std::int64_t count) {
    std::vector<GestureRule> list;
    for (std::int64_t i = 0; i < count; ++i) {
        GestureRule rule = GestureRule::recommendedDefault();
        rule.id = Uuid::random();
        rule.name = "Rule " + std::to_string(i);
        rule.fingerCount = 2 + i % 3;
        rule.gesture = static_cast<GestureKind>(1 + i % 20);
        rule.edgeSlideSide = EdgeSlideSide::left;
        rule.anchorCorner = AnchorCorner::topLeft;
        rule.drawPattern = DrawPattern::lShape;
        list.push_back(rule);
    }
    return list;
}

/// The slowest search: no rule matches, so it reads the whole list.
void selectNoRule(benchmark::State& state) {
    const std::vector<GestureRule> list = rules(state.range(0));
    const DetectedGesture gesture = DetectedTap{5, GestureKind::singleTap};
    for (auto _ : state)
        benchmark::DoNotOptimize(selectRule(list, gesture, ShellCommands::allowed));
}

void encodeRuleList(benchmark::State& state) {
    const std::vector<GestureRule> list = rules(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(encodeRules(list));
}

void decodeRuleList(benchmark::State& state) {
    const std::string json = encodeRules(rules(state.range(0)));
    if (!decodeRules(json))
        state.SkipWithError("the rules do not decode");
    for (auto _ : state)
        benchmark::DoNotOptimize(decodeRules(json));
}

BENCHMARK(selectNoRule)->Arg(100);
BENCHMARK(encodeRuleList)->Arg(1000);
BENCHMARK(decodeRuleList)->Arg(1000);

}  // namespace
}  // namespace kinesta
