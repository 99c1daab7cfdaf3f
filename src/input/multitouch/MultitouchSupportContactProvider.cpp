#include "input/multitouch/MultitouchSupportContactProvider.h"

#include "input/multitouch/MultitouchSupportCallbackTarget.h"
#include "support/Translation.h"

namespace kinesta {
namespace {

using ContactCallback = void (*)(void* device, void* touches, unsigned long count, double timestamp,
                                 unsigned long frame);
using CreateDefaultDevice = void* (*)();
using RegisterContactFrameCallback = void (*)(void* device, ContactCallback callback);
using StartDevice = std::int32_t (*)(void* device, std::int32_t mode);

extern "C" void kinestaContactCallback(void* /*device*/, void* touches, unsigned long count, double timestamp,
                                       unsigned long /*frame*/) noexcept {
    MultitouchSupportCallbackTarget::shared().receive(touches, count, timestamp);
}

template <typename Function>
Function functionIn(DynamicLibrary& library, const char* name) {
    return reinterpret_cast<Function>(library.symbol(name));
}

}  // namespace

MultitouchSupportContactProvider::MultitouchSupportContactProvider(OpenDynamicLibrary openLibrary, std::string path)
    : m_openLibrary(std::move(openLibrary)), m_path(std::move(path)) {}

MultitouchSupportContactProvider::~MultitouchSupportContactProvider() { stop(); }

void MultitouchSupportContactProvider::start() {
    if (m_status == TrackpadContactProviderStatus::listening())
        return;
    std::unique_ptr<DynamicLibrary> library = m_openLibrary(m_path);
    if (!library) {
        m_status = TrackpadContactProviderStatus::unavailable(
            translated("MultitouchSupport is unavailable on this macOS version."));
        return;
    }
    const auto createDevice = functionIn<CreateDefaultDevice>(*library, "MTDeviceCreateDefault");
    const auto registerCallback = functionIn<RegisterContactFrameCallback>(*library, "MTRegisterContactFrameCallback");
    const auto startDevice = functionIn<StartDevice>(*library, "MTDeviceStart");
    const auto stopDevice = functionIn<StopDevice>(*library, "MTDeviceStop");
    if (!createDevice || !registerCallback || !startDevice || !stopDevice) {
        library.reset();
        m_status = TrackpadContactProviderStatus::unavailable(translated("Required trackpad symbols were not found."));
        return;
    }
    void* const device = createDevice();
    if (device == nullptr) {
        library.reset();
        m_status = TrackpadContactProviderStatus::unavailable(translated("No built-in trackpad was found."));
        return;
    }
    m_library = std::move(library);
    m_device = device;
    m_stopDevice = stopDevice;
    MultitouchSupportCallbackTarget::shared().setReceiver(m_frameHandler);
    registerCallback(device, kinestaContactCallback);
    startDevice(device, 0);
    m_status = TrackpadContactProviderStatus::listening();
}

// The callback stays registered: the framework offers no way back. A late one finds no receiver.
void MultitouchSupportContactProvider::stop() {
    MultitouchSupportCallbackTarget& target = MultitouchSupportCallbackTarget::shared();
    target.removeReceiver(m_frameHandler);
    if (m_device != nullptr && m_stopDevice != nullptr)
        m_stopDevice(m_device);
    m_device = nullptr;
    m_stopDevice = nullptr;
    if (m_library)
        target.close(std::move(m_library));
    m_status = TrackpadContactProviderStatus::stopped();
}

void MultitouchSupportContactProvider::waitForHandlers() {
    MultitouchSupportCallbackTarget::shared().waitForCallbacks();
}

}  // namespace kinesta
