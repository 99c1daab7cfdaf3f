#include "ui/models/WorksHereModel.h"

#include <gtest/gtest.h>

#include "support/GestureRig.h"

namespace kinesta::testing {
namespace {

struct FakeReport final : SystemReport {
    void request(Receive receive) override { waiting.push_back(std::move(receive)); }
    std::vector<Receive> waiting;
};

TEST(WorksHereModel, AsksWhenTheWindowComesBackAndBelievesTheServiceAboutTheTouchpad) {
    GestureRig rig;
    const RuleStore store(rig.defaults);
    FakeReport report;
    MultitouchService& service = rig.launch();
    auto model = std::make_unique<WorksHereModel>(
        WorksHereModel::Parts{store, service, report, rig.clock, [] { return false; }});
    model->cameToFront();
    EXPECT_EQ(report.waiting.size(), 0U) << "not shown yet";
    model->setShown(true);
    model->cameToFront();
    EXPECT_EQ(report.waiting.size(), 1U) << "asked at this moment";
    rig.runUntil(WorksHereModel::moment + 1);
    model->cameToFront();
    EXPECT_EQ(report.waiting.size(), 2U);

    const SystemReport::Result noTouchpad{.findings = {{.subject = FindingSubject::touchpad,
                                                        .what = "Touchpad",
                                                        .works = false,
                                                        .why = "None was found.",
                                                        .remedy = "Connect one.",
                                                        .rulesInNeed = 1}},
                                          .text = {},
                                          .problem = {}};
    report.waiting[0](noTouchpad);
    EXPECT_EQ(model->content().value().state, WorksHereContent::State::fine);
    EXPECT_EQ(model->content().value().rows.at(0).remedy, "");
    service.stop();
    EXPECT_EQ(report.waiting.size(), 3U) << "the status matters";
    report.waiting[2](noTouchpad);
    EXPECT_EQ(model->content().value().state, WorksHereContent::State::missing);
    EXPECT_EQ(model->content().value().rows.at(0).tag, "1 rule needs this");

    rig.provider.statusAfterStart = TrackpadContactProviderStatus::unavailable("The recording has ended.");
    service.start();
    SystemReport::Result touchpad = noTouchpad;
    touchpad.findings[0].works = true;
    report.waiting.back()(touchpad);
    EXPECT_EQ(model->content().value().rows.at(0).why, "The recording has ended.");
    EXPECT_EQ(model->content().value().state, WorksHereContent::State::missing);
    model.reset();
    report.waiting[1](noTouchpad);
}

}  // namespace
}  // namespace kinesta::testing
