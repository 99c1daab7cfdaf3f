#include "input/recording/RecordingWriter.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <streambuf>

#include "RecordingText.h"
#include "input/recording/ReplayContactProvider.h"

namespace kinesta {
namespace {

using Limits = std::numeric_limits<double>;

/// An output that counts its flushes and holds no more than a number of bytes.
class CountingOutput final : public std::streambuf {
  public:
    explicit CountingOutput(std::size_t capacity = std::string::npos) : m_capacity(capacity) {}

    std::string text;
    int flushes = 0;

  private:
    std::streamsize xsputn(const char* data, std::streamsize size) override {
        if (text.size() + static_cast<std::size_t>(size) > m_capacity)
            return 0;
        text.append(data, static_cast<std::size_t>(size));
        return size;
    }
    int sync() override { return ++flushes, 0; }

    std::size_t m_capacity;
};

RecordingEvent frame(Seconds time, std::initializer_list<TouchSample> samples, std::optional<Uptime> received = {}) {
    return PadEvent{time, PadFrame{TouchSamples(samples), received}};
}

TEST(RecordingWriter, WritesOneLineAnEvent) {
    std::ostringstream output;
    RecordingWriter writer(output);
    ASSERT_TRUE(writer.writeHeader({.device = "Pad \"7\"\n\xFF", .settings = {.gesturesEnabled = true}}));
    for (const RecordingEvent& event :
         {frame(-0.5, {{1, {0.25, 1}}, {-2, {0.1, 1e-7}}}, 0.1), frame(-0.5, {}),
          RecordingEvent(PadEvent{1, PadButton::down}), RecordingEvent(PadEvent{1, PadPressure{-1}}),
          RecordingEvent(SettingsChange{1e5, {.tapWaitingMilliseconds = 400, .cornerPalmRejectionSensitivity = 0.5}})})
        ASSERT_TRUE(writer.write(event));
    EXPECT_EQ(output.str(),
              R"({"kinesta":"recording","version":1,"device":"Pad \"7\"\n�","settings":{"gesturesEnabled":true}}
{"t":-0.5,"touches":[[1,0.25,1],[-2,0.1,1e-07]],"received":0.1}
{"t":-0.5,"touches":[]}
{"t":1,"pointer":"down"}
{"t":1,"pressure":-1}
{"t":1e+05,"settings":{"tapWaitingInterval.v1":400,"cornerPalmRejectionSensitivity.v1":0.5}}
)");
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
    std::stringstream stream;
    RecordingWriter writer(stream);
    ASSERT_TRUE(writer.writeHeader(header));
    for (const RecordingEvent& event : events)
        ASSERT_TRUE(writer.write(event));
    const Reading reading = read(stream);
    EXPECT_EQ(reading.error, "");
    EXPECT_EQ(reading.header, header);
    EXPECT_TRUE(reading.events == events);
    EXPECT_TRUE(reading.texts()[0].ends_with("@-0,0 received -9.2e+09")) << reading.texts()[0];
}

TEST(RecordingWriter, RefusesWhatTheReaderWouldRefuse) {
    CountingOutput output;
    std::ostream stream(&output);
    RecordingWriter writer(stream, RecordingWriter::Flush::everyLine);
    EXPECT_FALSE(writer.writeHeader({.device = "", .settings = {.tapWaitingMilliseconds = 251}}));
    EXPECT_EQ(output.text, "");
    ASSERT_TRUE(writer.writeHeader({}));
    ASSERT_TRUE(writer.write(frame(5, {})));
    const std::string before = output.text;
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
    EXPECT_EQ(output.text, before);
    EXPECT_TRUE(writer.write(frame(5, {}))) << "a refused event moved the time on";

    CountingOutput full(40);
    std::ostream fullStream(&full);
    RecordingWriter unlucky(fullStream);
    ASSERT_TRUE(unlucky.writeHeader({}));
    EXPECT_EQ(unlucky.write(frame(1, {})).error().message, "the recording cannot be written");
    EXPECT_EQ(full.flushes, 0);
}

TEST(ReplayContactProvider, DeliversWhileStarted) {
    ReplayContactProvider provider;
    std::vector<Seconds> seen;
    for (Seconds time = 0; time < 6; ++time) {
        if (time == 1 || time == 4)
            provider.start();
        if (time == 2)
            provider.setFrameHandler([&](const TrackpadContactFrame& frame) { seen.push_back(frame.timestamp); });
        if (time == 3)
            provider.stop();
        if (time == 4)  // a handler may stop the provider and replace itself
            provider.setFrameHandler([&](const TrackpadContactFrame& frame) {
                provider.stop();
                provider.setFrameHandler({});
                seen.push_back(frame.timestamp);
            });
        provider.deliver({{}, time});
    }
    EXPECT_EQ(seen, (std::vector<Seconds>{2, 4}));
    EXPECT_EQ(provider.status(), TrackpadContactProviderStatus::stopped());
}

}  // namespace
}  // namespace kinesta
