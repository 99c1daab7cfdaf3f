#include "cli/RecordCommand.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <system_error>

#include "cli/Interrupts.h"
#include "input/RecordingWriter.h"
#include "platform/linux/EvdevContactProvider.h"
#include "support/SteadyClock.h"

namespace kinesta {

ExitStatus record(const Console& console, const std::string& output, const std::string& device) {
    RunLoop loop;
    const Interrupts interrupts(loop);
    const SteadyClock clock;
    EvdevContactProvider provider(loop, {.device = device, .pressure = {}});
    provider.start();
    if (provider.status().kind == TrackpadContactProviderStatus::Kind::unavailable)
        return console.fail(provider.status().message);
    const std::string name = provider.state().name;
    provider.stop();

    std::ofstream file;
    if (output != "-") {
        errno = 0;
        file.open(output, std::ios::binary);
        if (!file)
            return console.fail(output + ": the file cannot be written: " + std::generic_category().message(errno));
    }
    std::ostream& stream = output == "-" ? console.out : file;
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
    if (const Outcome written = writer.writeHeader({.device = name, .settings = {}}); !written)
        return console.fail(written.error().message);
    provider.start();
    if (console.errIsTerminal)
        console.err << "Recording " << name << ". Ctrl-C ends.\n";
    loop.run();
    provider.stop();
    if (!stream)
        return console.fail((output == "-" ? std::string("standard output") : output) + ": writing failed");
    if (output != "-")
        console.err << "Wrote " << events << " events to " << output << ".\n";
    return ExitStatus::success;
}

}  // namespace kinesta
