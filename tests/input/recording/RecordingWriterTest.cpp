#include "input/recording/RecordingWriter.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "RecordingText.h"
#include "StreamFakes.h"
#include "input/recording/ReplayContactProvider.h"

namespace kinesta {
namespace {

using Limits = std::numeric_limits<double>;

RecordingEvent frame(Seconds time, std::initializer_list<TouchSample> samples, std::optional<Uptime> received = {}) {
    return {time, RecordedFrame{TouchSamples(samples), received}};
}

TEST(RecordingWriter, WritesOneLineAnEvent) {
    std::ostringstream output;
    RecordingWriter writer(output);
    ASSERT_TRUE(writer.writeHeader({.device = "Pad \"7\"\n\xFF", .settings = {.gesturesEnabled = true}}));
    ASSERT_TRUE(writer.write(frame(-0.5, {{1, {0.25, 1}}, {-2, {0.1, 1e-7}}}, 0.1)));
    ASSERT_TRUE(writer.write(frame(-0.5, {})));
    ASSERT_TRUE(writer.write({1, RecordedPointer::down}));
    ASSERT_TRUE(writer.write({1, RecordedPressure{-1}}));
    ASSERT_TRUE(
        writer.write({100000, RecordedSettings{.tapWaitingMilliseconds = 400, .cornerPalmRejectionSensitivity = 0.5}}));
    EXPECT_EQ(output.str(),
              R"({"kinesta":"recording","version":1,"device":"Pad \"7\"\n�","settings":{"gesturesEnabled":true}}
{"t":-0.5,"touches":[[1,0.25,1],[-2,0.1,1e-07]],"received":0.1}
{"t":-0.5,"touches":[]}
{"t":1,"pointer":"down"}
{"t":1,"pressure":-1}
{"t":1e+05,"settings":{"tapWaitingInterval.v1":400,"cornerPalmRejectionSensitivity.v1":0.5}}
)");
}

TEST(RecordingWriter, IsReadBackToTheLastBit) {
    std::mt19937_64 random(5);
    const auto anyNumber = [&random] {
        for (;;)
            if (const auto number = std::bit_cast<double>(random()); std::isfinite(number))
                return number;
    };
    std::vector<double> numbers{0.0, -0.0, 1.0 / 3, 0.1 + 0.2, 9007199254740993.0, std::nextafter(1.0, 0.0)};
    for (const double number : {Limits::max(), Limits::min(), Limits::denorm_min(), Limits::epsilon()})
        numbers.insert(numbers.end(), {number, -number});
    for (int i = 0; i < 2000; ++i)
        numbers.push_back(anyNumber());
    std::vector<RecordingEvent> events;
    Seconds time = -9.2e9;
    for (const double number : numbers) {
        events.push_back(frame(
            time,
            {{static_cast<ContactId>(random()), {number, -number}}, {std::numeric_limits<ContactId>::min(), {1, 1}}},
            time));
        time = std::min(9.2e9, time + 1e7 * std::generate_canonical<double, 64>(random));
    }
    TouchSamples crowd;
    for (ContactId id = 0; id < 40; ++id)
        crowd.push_back({id, {anyNumber(), anyNumber()}});
    events.push_back({9.2e9, RecordedFrame{crowd, std::nullopt}});
    events.push_back({9.2e9, RecordedPressure{std::numeric_limits<std::int64_t>::max()}});
    events.push_back({9.2e9, RecordedSettings{false, 150, false, Limits::max()}});
    const RecordingHeader header{.device = "é\t\x01 \"\\", .settings = {true, 300, true, -0.0}};

    std::stringstream stream;
    RecordingWriter writer(stream);
    ASSERT_TRUE(writer.writeHeader(header));
    for (const RecordingEvent& event : events)
        ASSERT_TRUE(writer.write(event));
    const Reading reading = read(stream);
    EXPECT_EQ(reading.error, "");
    EXPECT_EQ(reading.header, header);
    ASSERT_EQ(reading.events.size(), events.size());
    for (std::size_t i = 0; i < events.size(); ++i)
        ASSERT_EQ(reading.events[i], events[i]) << eventText(events[i]);
    EXPECT_TRUE(std::signbit(std::get<RecordedFrame>(reading.events[1].content).samples[0].position.x));
}

TEST(RecordingWriter, RefusesWhatCouldNotBeRead) {
    CountingOutput output;
    std::ostream stream(&output);
    RecordingWriter writer(stream, RecordingWriter::Flush::everyLine);
    EXPECT_FALSE(writer.writeHeader({.device = "", .settings = {.tapWaitingMilliseconds = 251}}));
    EXPECT_EQ(output.text, "");
    ASSERT_TRUE(writer.writeHeader({}));
    ASSERT_TRUE(writer.write(frame(5, {})));
    const std::string before = output.text;
    EXPECT_EQ(output.flushes, 2);
    for (const RecordingEvent& event : {
             frame(4.9, {}),
             frame(Limits::quiet_NaN(), {}),
             frame(Limits::infinity(), {}),
             frame(9.3e9, {}),
             frame(6, {}, Limits::quiet_NaN()),
             frame(6, {}, -9.3e9),
             frame(6, {{1, {0, Limits::infinity()}}}),
             frame(6, {{1, {Limits::quiet_NaN(), 0}}}),
             frame(6, {{1, {0, 0}}, {2, {0, 0}}, {1, {1, 1}}}),
             RecordingEvent{6, RecordedSettings{.tapWaitingMilliseconds = 0}},
             RecordingEvent{6, RecordedSettings{.cornerPalmRejectionSensitivity = Limits::infinity()}},
         }) {
        const Outcome outcome = writer.write(event);
        ASSERT_FALSE(outcome) << eventText(event);
        EXPECT_TRUE(outcome.error().message.starts_with("this cannot be recorded: ")) << outcome.error().message;
    }
    EXPECT_EQ(output.text, before);
    EXPECT_TRUE(writer.write(frame(5, {}))) << "a refused event moved the time on";

    CountingOutput full(40);
    std::ostream fullStream(&full);
    RecordingWriter unlucky(fullStream);
    ASSERT_TRUE(unlucky.writeHeader({}));
    EXPECT_EQ(unlucky.write(frame(1, {})).error().message, "the recording cannot be written");
    EXPECT_EQ(full.flushes, 0);
}

TEST(ReplayContactProvider, DeliversOnlyWhileStarted) {
    ReplayContactProvider provider;
    std::vector<Seconds> seen;
    const auto note = [&seen](const TrackpadContactFrame& frame) { seen.push_back(frame.timestamp); };
    provider.deliver({{}, 0});
    provider.stop();
    EXPECT_EQ(provider.status(), TrackpadContactProviderStatus::stopped());
    provider.start();
    provider.deliver({{}, 1});
    provider.setFrameHandler(note);
    EXPECT_EQ(provider.status(), TrackpadContactProviderStatus::listening());
    provider.deliver({{}, 2});
    provider.deliver({{{1, {0, 0}}}, 3});
    provider.stop();
    provider.deliver({{}, 4});
    provider.start();
    // A handler may stop the provider, and put another in its own place.
    provider.setFrameHandler([&](const TrackpadContactFrame& frame) {
        provider.stop();
        provider.setFrameHandler({});
        note(frame);
    });
    provider.deliver({{}, 5});
    provider.deliver({{}, 6});
    EXPECT_EQ(seen, (std::vector<Seconds>{2, 3, 5}));
    EXPECT_EQ(provider.status(), TrackpadContactProviderStatus::stopped());
    EXPECT_FALSE(provider.frameHandler());
}

}  // namespace
}  // namespace kinesta
