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

std::string text(const TrackpadContactProviderStatus& status) {
    switch (status.kind) {
        case TrackpadContactProviderStatus::Kind::listening:
            return "listening";
        case TrackpadContactProviderStatus::Kind::stopped:
            return "stopped";
        case TrackpadContactProviderStatus::Kind::unavailable:
            break;
    }
    return status.message;
}

}  // namespace

double now() { return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count(); }

PadReading::PadReading(EvdevContactProvider::Settings settings) : m_provider(m_mainThread, std::move(settings)) {
    m_provider.setFrameHandler([this](const TrackpadContactFrame& frame) {
        add(text(frame), frame.timestamp);
        std::unique_lock lock(m_lock);
        if (m_hold != Hold::wanted)
            return;
        m_hold = Hold::held;
        m_change.notify_all();
        m_change.wait(lock, [this] { return m_hold == Hold::none; });
    });
    m_provider.setPointerHandler([this](const PadEvent& event) {
        if (const auto* pointer = std::get_if<PadButton>(&event.content))
            add(*pointer == PadButton::down ? "down" : "up", event.time);
        else if (const auto* pressure = std::get_if<PadPressure>(&event.content))
            add("stage " + std::to_string(pressure->stage), event.time);
    });
    m_provider.setStatusHandler([this] { add(status(), 0); });
    m_provider.start();
}

PadReading::~PadReading() { letGo(); }

std::string PadReading::status() const { return text(m_provider.status()); }

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
        m_mainThread.run();  // until add() has something
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

void PadReading::holdNextFrame() {
    const std::lock_guard lock(m_lock);
    m_hold = Hold::wanted;
}

void PadReading::waitUntilHeld() {
    std::unique_lock lock(m_lock);
    m_change.wait_for(lock, std::chrono::seconds(5), [this] { return m_hold == Hold::held; });
}

void PadReading::letGo() {
    const std::lock_guard lock(m_lock);
    m_hold = Hold::none;
    m_change.notify_all();
}

}  // namespace kinesta::vm
