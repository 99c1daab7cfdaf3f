#include "platform/posix/StreamTrackpad.h"

#include <filesystem>
#include <utility>

#include "input/recording/RecordingReading.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

/// Half a second of most pads: so much may be late without a gap if the main thread was busy.
constexpr std::ptrdiff_t kEventsAhead = 64;

std::string problemOfOpening(InterruptibleStream& input, const std::string& path) {
    const Outcome opened = input.open(path);
    return opened ? "" : translated("The trackpad recording %1 cannot be opened: %2.", {path, opened.error().message});
}

}  // namespace

StreamTrackpad::StreamTrackpad(MainThread& mainThread, const Clock& clock, std::string path)
    : m_mainThread(mainThread),
      m_path(std::move(path)),
      m_problem(problemOfOpening(m_input, m_path)),
      m_pad(mainThread, clock, m_input.isComplete() ? RecordedPad::Source::file : RecordedPad::Source::live,
            {.begin = [this] { begin(); }, .taken = [this] { m_room.release(); }}),
      m_room(kEventsAhead) {}

StreamTrackpad::~StreamTrackpad() {
    m_isEnding = true;
    m_input.interrupt();
    m_room.release();
    if (m_thread.joinable())
        m_thread.join();
}

LiveTrackpad::Identity StreamTrackpad::identity() const {
    return {.name = std::filesystem::path(m_path).filename().string(), .path = m_path, .canTellPressure = true};
}

void StreamTrackpad::begin() {
    if (m_problem.empty())
        m_thread = std::thread([this] { read(); });
    else
        m_pad.end(m_problem);
}

void StreamTrackpad::read() {
    std::string why = readToEnd();
    m_input.close();
    post([this, why = std::move(why)] { m_pad.end(why); });
}

/// Returns why nothing more can be read.
std::string StreamTrackpad::readToEnd() {
    const auto unreadable = [](const Error& why) {
        return translated("The trackpad recording cannot be read: %1.", {why.message});
    };
    const auto reader = openRecording(m_input.stream(), m_path);
    if (!reader)
        return unreadable(reader.error());
    for (;;) {
        auto event = (*reader)->next();
        if (!event)
            return unreadable(event.error());
        if (!*event)
            return translated("The trackpad recording %1 has ended.", {m_path});
        m_room.acquire();
        if (m_isEnding)
            return {};
        post([this, event = std::move(**event)] { m_pad.take(event); });
    }
}

/// On the thread: runs `task` on the main thread if this object still exists then.
void StreamTrackpad::post(std::function<void()> task) {
    m_mainThread.post([alive = std::weak_ptr(m_alive), task = std::move(task)] {
        if (!alive.expired())
            task();
    });
}

}  // namespace kinesta
