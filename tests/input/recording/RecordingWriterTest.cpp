#include "input/recording/RecordingWriter.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "RecordingText.h"
#include "input/recording/ReplayContactProvider.h"

namespace kinesta {
namespace {

using Limits = std::numeric_limits<double>;

RecordingEvent frame(Seconds time, std::initializer_list<TouchSample> samples, std::optional<Uptime> received = {}) {
    return PadEvent{time, PadFrame{TouchSamples(samples), received}};
}

std::string written(const RecordingHeader& header, const std::vector<RecordingEvent>& events) {
    std::ostringstream output;
    RecordingWriter writer(output);
    EXPECT_TRUE(writer.writeHeader(header));
    for (const RecordingEvent& event : events)
        EXPECT_TRUE(writer.write(event)) << eventText(event);
    return output.str();
}

TEST(RecordingWriter, WritesOneLineAnEvent) {
    const std::string text =
        R"({"kinesta":"recording","version":1,"device":"Pad \"7\"\n�","settings":{"gesturesEnabled":true}}
{"t":-0.5,"touches":[[1,0.25,1],[-2,0.1,1e-07]],"received":0.1}
{"t":-0.5,"touches":[]}
{"t":1,"pointer":"down"}
{"t":1,"pressure":-1}
{"t":1e+05,"settings":{"tapWaitingInterval.v1":400,"cornerPalmRejectionSensitivity.v1":0.5}}
)";
    Reading reading = read(text);
    reading.header.device = "Pad \"7\"\n\xFF";  // not UTF-8
    EXPECT_EQ(written(reading.header, reading.events), text);
}

TEST(RecordingWriter, WritesEveryBit) {
    std::mt19937_64 random(5);
    std::vector<double> numbers{-0.0, 1.0 / 3, 0.1 + 0.2, 9007199254740993.0, Limits::max(), Limits::denorm_min()};
    while (numbers.size() < 2000)
        if (const auto number = std::bit_cast<double>(random()); std::isfinite(number))
            numbers.push_back(number);
    std::vector<RecordingEvent> events;
    Seconds time = -9.2e9;
    for (const double number : numbers) {
        events.push_back(frame(time, {{static_cast<ContactId>(random()), {number, -number}}}, time));
        time = std::min(9.2e9, time + 1e7 * std::generate_canonical<double, 64>(random));
    }
    events.push_back(PadEvent{9.2e9, PadPressure{std::numeric_limits<std::int64_t>::min()}});
    events.push_back(SettingsChange{9.2e9, {false, 150, false, Limits::max()}});
    const RecordingHeader header{.device = "é\t\x01 \"\\", .settings = {true, 300, true, -0.0}};
    const Reading reading = read(written(header, events));
    EXPECT_EQ(reading.error, "");
    EXPECT_EQ(reading.header, header);
    EXPECT_TRUE(reading.events == events);
    EXPECT_TRUE(eventText(reading.events.at(0)).ends_with("@-0,0 received -9.2e+09")) << eventText(reading.events[0]);
}

TEST(RecordingWriter, RefusesWhatTheReaderWouldRefuse) {
    struct CountingOutput final : std::stringbuf {
        int flushes = 0;
        int sync() override { return ++flushes, 0; }
    } output;
    std::ostream stream(&output);
    RecordingWriter writer(stream, RecordingWriter::Flush::everyLine);
    EXPECT_FALSE(writer.writeHeader({.device = "", .settings = {.tapWaitingMilliseconds = 251}}));
    EXPECT_EQ(output.str(), "");
    ASSERT_TRUE(writer.writeHeader({}));
    ASSERT_TRUE(writer.write(frame(5, {})));
    const std::string before = output.str();
    EXPECT_EQ(output.flushes, 2);
    for (const RecordingEvent& event :
         {frame(4.9, {}), frame(Limits::quiet_NaN(), {}), frame(9.3e9, {}), frame(6, {}, Limits::quiet_NaN()),
          frame(6, {}, -9.3e9), frame(6, {{1, {0, Limits::infinity()}}}), frame(6, {{1, {Limits::quiet_NaN(), 0}}}),
          frame(6, {{1, {0, 0}}, {2, {0, 0}}, {1, {1, 1}}}),
          RecordingEvent(SettingsChange{6, {.tapWaitingMilliseconds = 0}}),
          RecordingEvent(SettingsChange{6, {.cornerPalmRejectionSensitivity = Limits::infinity()}})}) {
        const Outcome outcome = writer.write(event);
        EXPECT_TRUE(!outcome && outcome.error().message.starts_with("this cannot be recorded: ")) << eventText(event);
    }
    EXPECT_EQ(output.str(), before);
    EXPECT_TRUE(writer.write(frame(5, {}))) << "a refused event moved the time on";

    CountingOutput broken;
    std::ostream brokenStream(&broken);
    RecordingWriter unlucky(brokenStream);
    ASSERT_TRUE(unlucky.writeHeader({}));
    brokenStream.setstate(std::ios::badbit);
    EXPECT_EQ(unlucky.write(frame(1, {})).error().message, "the recording cannot be written");
    EXPECT_EQ(broken.flushes, 0);
}

TEST(ReplayContactProvider, DeliversWhileStarted) {
    ReplayContactProvider provider;
    std::string seen;
    for (int time = 0; time < 6; ++time) {
        if (time == 2 || time == 4)
            provider.start();
        provider.deliver({{}, static_cast<Seconds>(time)});
        if (time == 0)
            provider.setFrameHandler([&](const TrackpadContactFrame& frame) {
                provider.stop();
                if (frame.timestamp == 4)
                    provider.setFrameHandler({});  // replaces the handler that is running
                seen += numberText(frame.timestamp) + " ";
            });
    }
    EXPECT_EQ(provider.status(), TrackpadContactProviderStatus::stopped());
    provider.start();
    provider.deliver({{}, 6});
    EXPECT_EQ(seen, "2 4 ");
}

}  // namespace
}  // namespace kinesta
