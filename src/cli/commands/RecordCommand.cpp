#include "cli/commands/Commands.h"

#include <algorithm>
#include <functional>

#include "app/OutputFile.h"
#include "cli/StoredSettings.h"
#include "cli/terminal/TextTable.h"
#include "input/recording/RecordingWriter.h"
#include "recognition/StoredRecognitionSettings.h"

namespace kinesta {

namespace {

/// The settings of recognition, except whether it is on: a replay must always recognize gestures.
RecordedSettings settingsToRecord(const UserDefaults& defaults) {
    const auto palms = storedCornerPalmRejection(defaults);
    return {.tapWaitingMilliseconds = static_cast<int>(storedTapWaitingInterval(defaults).rawValue()),
            .cornerPalmRejectionEnabled = palms.isEnabled,
            .cornerPalmRejectionSensitivity = palms.sensitivity};
}

}  // namespace

ExitStatus record(const Console& console, Desktop& desktop, const std::string& output, const std::string& device) {
    MainLoop& loop = desktop.mainLoop();
    desktop.catchSignals({ProgramSignal::end}, [&loop](ProgramSignal) { loop.quit(); });
    StoredSettings settings(console, desktop);
    LiveTrackpad& trackpad = desktop.trackpad();
    TrackpadContactProviding& contacts = trackpad.contacts();
    trackpad.choose(device);
    std::function<void(PadEvent)> write;  // set before the loop runs
    trackpad.watch([&write](const PadEvent& event) { write(event); });
    trackpad.onStatusChange([&] {
        console.err << (contacts.status() == TrackpadContactProviderStatus::listening()
                            ? "Recording " + printable(trackpad.identity().name) + " again."
                            : printable(contacts.status().message) + " Recording goes on when there is one.")
                    << '\n';
    });
    contacts.start();
    if (contacts.status().kind == TrackpadContactProviderStatus::Kind::unavailable)
        return console.fail(printable(contacts.status().message));

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
    // The file gets one whole line at a time, so that it is a valid recording even if the program is killed.
    write = [&](PadEvent event) {
        last = event.time = std::max(last, event.time);
        if (writer.write(event))
            ++events;
        if (!stream)
            loop.quit();
    };
    const RecordingHeader header{trackpad.identity().name, settingsToRecord(settings.defaults())};
    Outcome begun = writer.writeHeader(header);
    if (begun && file)
        begun = file->commit();
    if (!begun)
        return console.fail(begun.error().message);
    if (console.errIsTerminal)
        console.err << "Recording " << printable(header.device) << ". Ctrl-C ends.\n";
    loop.run();
    contacts.stop();
    if (const Outcome written = file ? file->commit() : success(); !written)
        return console.fail(written.error().message);
    if (!stream)
        return console.fail("standard output: writing failed");
    if (output != "-")
        console.err << "Wrote " << events << " events to " << output << ".\n";
    return settings.status();
}

}  // namespace kinesta
