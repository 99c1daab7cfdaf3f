#include "vm/PadReading.h"

#include <cstdio>
#include <utility>

namespace kinesta::vm {
namespace {

std::string text(const TrackpadContactFrame& frame) {
    std::string line = "t";
    for (const TouchSample& sample : frame.samples) {
        char contact[64];
        std::snprintf(contact, sizeof contact, " %d@%.2f,%.2f", sample.id, sample.position.x, sample.position.y);
        line += contact;
    }
    return line;
}

}  // namespace

double now() { return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count(); }

PadReading::PadReading(const std::string& device) : m_provider(m_mainThread, {.device = device, .pressure = {}}) {
    m_provider.setFrameHandler([this](const TrackpadContactFrame& frame) {
        add(text(frame), frame.timestamp);
        const std::lock_guard passing(frameGate);
    });
    m_provider.setPointerHandler([this](const PadEvent& event) {
        if (const auto* pointer = std::get_if<PadButton>(&event.content))
            add(*pointer == PadButton::down ? "down" : "up", event.time);
        else if (const auto* pressure = std::get_if<PadPressure>(&event.content))
            add("stage " + std::to_string(pressure->stage), event.time);
    });
    m_provider.setStatusHandler([this] { add(status()); });
    m_provider.start();
}

std::string PadReading::status() const {
    using Kind = TrackpadContactProviderStatus::Kind;
    const auto status = m_provider.status();
    return status.kind == Kind::listening ? "listening" : status.kind == Kind::stopped ? "stopped" : status.message;
}

Lines PadReading::take(std::size_t count, std::chrono::milliseconds limit) {
    bool isLate = false;
    const DelayedTask timeout = m_mainThread.after(limit, [&] {
        isLate = true;
        m_mainThread.quit();
    });
    for (;;) {
        {
            const std::lock_guard lock(m_lock);
            if (m_lines.size() >= count || isLate) {
                m_takenTimes = std::exchange(m_times, {});
                return std::exchange(m_lines, {});
            }
        }
        m_mainThread.run();  // until add() is called
    }
}

bool PadReading::takeUntil(const std::string& last, std::size_t* taken) {
    for (;;) {
        const Lines lines = take(1);
        if (taken)
            *taken += lines.size();
        if (lines.empty() || lines.back() == last)
            return !lines.empty();
    }
}

void PadReading::add(std::string line, double time) {
    {
        const std::lock_guard lock(m_lock);
        m_lines.push_back(std::move(line));
        m_times.push_back(time);
    }
    m_mainThread.quit();
}

}  // namespace kinesta::vm
