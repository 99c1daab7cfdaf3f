#include "platform/linux/launching/DesktopPortal.h"

#include <fcntl.h>

#include <chrono>

#include "platform/posix/FileDescriptor.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

using Steady = std::chrono::steady_clock;

constexpr const char* kService = "org.freedesktop.portal.Desktop";
constexpr const char* kObject = "/org/freedesktop/portal/desktop";
constexpr const char* kInterface = "org.freedesktop.portal.OpenURI";

/// How long a portal may take to start and answer.
constexpr std::chrono::seconds kPatience{3};

}  // namespace

DesktopPortal::~DesktopPortal() {
    const auto deadline = Steady::now() + kPatience;
    while (!m_unanswered.empty() && Steady::now() < deadline) {
        sd_bus* bus = m_bus.open();
        if (bus == nullptr || m_bus.generation() != m_generation)
            return;
        if (!m_unanswered.empty())
            sd_bus_wait(bus, static_cast<std::uint64_t>(std::chrono::microseconds(MessageBus::kPatience).count()));
    }
}

bool DesktopPortal::openURL(const std::string& url) {
    sd_bus* bus = open();
    if (bus == nullptr)
        return false;
    Request& request = prepare(url);
    sd_bus_slot* slot = nullptr;
    const int queued = sd_bus_call_method_async(bus, &slot, kService, kObject, kInterface, "OpenURI", &handleAnswer,
                                                &request, "ssa{sv}", "", url.c_str(), 0);
    return send(request, queued, slot);
}

bool DesktopPortal::openFile(const std::string& path) {
    const FileDescriptor file(::open(path.c_str(), O_PATH | O_CLOEXEC));
    sd_bus* bus = file ? open() : nullptr;
    if (bus == nullptr)
        return false;
    Request& request = prepare(path);
    sd_bus_slot* slot = nullptr;
    const int queued = sd_bus_call_method_async(bus, &slot, kService, kObject, kInterface, "OpenFile", &handleAnswer,
                                                &request, "sha{sv}", "", file.number(), 0);
    return send(request, queued, slot);
}

sd_bus* DesktopPortal::open() { return m_bus.offers(kService) ? m_bus.open() : nullptr; }

DesktopPortal::Request& DesktopPortal::prepare(const std::string& what) {
    if (m_generation != m_bus.generation()) {
        m_generation = m_bus.generation();
        m_unanswered.clear();  // nothing comes over a connection that was lost
    }
    return m_unanswered.emplace_back(Request{*this, what, nullptr});
}

bool DesktopPortal::send(Request& request, int queued, sd_bus_slot* slot) {
    request.slot.reset(slot);
    if (queued < 0)
        forget(request);
    return queued >= 0 && m_bus.flush();
}

int DesktopPortal::handleAnswer(sd_bus_message* answer, void* request, sd_bus_error*) {
    const Request& answered = *static_cast<Request*>(request);
    if (sd_bus_message_is_method_error(answer, nullptr) != 0)
        answered.portal.m_log(translated("The desktop's portal did not open %1.", {answered.what}));
    answered.portal.forget(answered);
    return 0;
}

void DesktopPortal::forget(const Request& request) {
    m_unanswered.remove_if([&](const Request& each) { return &each == &request; });
}

}  // namespace kinesta
