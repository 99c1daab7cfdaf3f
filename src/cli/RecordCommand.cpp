#include "cli/RecordCommand.h"

#include <algorithm>

#include "cli/Interrupts.h"
#include "cli/LiveRecognition.h"
#include "cli/OutputFile.h"
#include "cli/StoredSettings.h"
#include "cli/TextTable.h"
#include "input/RecordingWriter.h"
#include "recognition/StoredRecognitionSettings.h"
#include "support/SteadyClock.h"

namespace kinesta {

namespace {

/// What recognition goes by here, except whether it is on: what was recorded is to be recognized.
RecordedSettings settingsToRecord(const UserDefaults& defaults) {
    const auto palms = storedCornerPalmRejection(defaults);
    return {.tapWaitingMilliseconds = static_cast<int>(milliseconds(storedTapWaitingInterval(defaults))),
            .cornerPalmRejectionEnabled = palms.isEnabled,
            .cornerPalmRejectionSensitivity = palms.sensitivity};
}

}  // namespace

ExitStatus record(const Console& console, const std::filesystem::path& defaults, const std::string& output,
                  const std::string& device) {
    RunLoop loop;
    const Interrupts interrupts(loop);
    const SteadyClock clock;
    StoredSettings settings(console, defaults);
    const std::string wanted = device.empty() ? settings.defaults().string(kTouchpadSettingKey).value_or("") : device;
    EvdevContactProvider provider(loop, {.device = wanted, .pressure = {}});
    provider.start();
    if (provider.status().kind == TrackpadContactProviderStatus::Kind::unavailable)
        return console.fail(provider.status().message);
    const std::string name = provider.state().name;
    provider.stop();

    std::unique_ptr<OutputFile> file;
    if (output != "-") {
        auto created = OutputFile::create(output);
        if (!created)
            return console.fail(created.error().message);
        file = std::move(*created);
    }
    std::ostream& stream = file ? file->stream() : console.out;
    RecordingWriter writer(stream, RecordingWriter::Flush::everyLine);
    std::size_t events = 0;
    Seconds last = 0;
    // One whole line at a time reaches the file, so that whatever ends us leaves a valid recording.
    const auto write = [&](RecordingEvent event) {
        last = event.time = std::max(last, event.time);
        if (const Outcome written = writer.write(event); written)
            ++events;
        if (!stream)
            loop.quit();
    };
    provider.setFrameHandler([&](const TrackpadContactFrame& frame) {
        loop.post([&write, frame, received = clock.uptime()] {
            write({frame.timestamp, RecordedFrame{frame.samples, received}});
        });
    });
    provider.setPointerHandler(write);
    if (const Outcome written = writer.writeHeader({.device = name, .settings = settingsToRecord(settings.defaults())});
        !written)
        return console.fail(written.error().message);
    if (file)
        if (const Outcome placed = file->commit(); !placed)
            return console.fail(placed.error().message);
    provider.start();
    if (console.errIsTerminal)
        console.err << "Recording " << printable(name) << ". Ctrl-C ends.\n";
    loop.run();
    provider.stop();
    if (!stream)
        return console.fail((output == "-" ? std::string("standard output") : output) + ": writing failed");
    if (output != "-")
        console.err << "Wrote " << events << " events to " << output << ".\n";
    return settings.status();
}

}  // namespace kinesta
