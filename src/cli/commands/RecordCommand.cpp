#include "cli/commands/RecordCommand.h"

#include <algorithm>
#include <functional>

#include "cli/Interrupts.h"
#include "cli/LiveRecognition.h"
#include "cli/OutputFile.h"
#include "cli/StoredSettings.h"
#include "cli/terminal/TextTable.h"
#include "input/recording/RecordingWriter.h"
#include "recognition/StoredRecognitionSettings.h"
#include "support/SteadyClock.h"

namespace kinesta {

namespace {

/// What recognition goes by here, except whether it is on: what was recorded is to be recognized.
RecordedSettings settingsToRecord(const UserDefaults& defaults) {
    const auto palms = storedCornerPalmRejection(defaults);
    return {.tapWaitingMilliseconds = static_cast<int>(storedTapWaitingInterval(defaults).rawValue()),
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
    std::function<void(PadEvent)> write;  // set before the loop runs
    provider.setFrameHandler([&](const TrackpadContactFrame& frame) {
        loop.post([&write, frame, received = clock.uptime()] {
            write({frame.timestamp, PadFrame{frame.samples, received}});
        });
    });
    provider.setPointerHandler([&](const PadEvent& event) { write(event); });
    provider.setStatusHandler([&] {
        console.err << (provider.status() == TrackpadContactProviderStatus::listening()
                            ? "Recording " + printable(provider.state().name) + " again."
                            : printable(provider.status().message) + " Recording goes on when there is one.")
                    << '\n';
    });
    provider.start();
    if (provider.status().kind == TrackpadContactProviderStatus::Kind::unavailable)
        return console.fail(printable(provider.status().message));

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
    write = [&](PadEvent event) {
        last = event.time = std::max(last, event.time);
        if (writer.write(event))
            ++events;
        if (!stream)
            loop.quit();
    };
    const RecordingHeader header{provider.state().name, settingsToRecord(settings.defaults())};
    Outcome begun = writer.writeHeader(header);
    if (begun && file)
        begun = file->commit();
    if (!begun)
        return console.fail(begun.error().message);
    if (console.errIsTerminal)
        console.err << "Recording " << printable(header.device) << ". Ctrl-C ends.\n";
    loop.run();
    provider.stop();
    if (const Outcome written = file ? file->commit() : success(); !written)
        return console.fail(written.error().message);
    if (!stream)
        return console.fail("standard output: writing failed");
    if (output != "-")
        console.err << "Wrote " << events << " events to " << output << ".\n";
    return settings.status();
}

}  // namespace kinesta
