#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "input/TrackpadContactProviding.h"
#include "input/multitouch/DynamicLibrary.h"

namespace kinesta {

/// Contact frames of the built-in trackpad of macOS, from a private framework that is loaded while the provider runs.
///
/// The framework calls back without a context, so only the provider that was started last receives frames. They come on
/// the framework's thread. All other calls are on the main thread, except those about the handler. A frame that is
/// being delivered when stop() is called still reaches the handler, even after the end of the provider.
class MultitouchSupportContactProvider final : public TrackpadContactProviding {
  public:
    static constexpr const char* kFrameworkPath =
        "/System/Library/PrivateFrameworks/MultitouchSupport.framework/MultitouchSupport";

    explicit MultitouchSupportContactProvider(OpenDynamicLibrary openLibrary, std::string path = kFrameworkPath);
    ~MultitouchSupportContactProvider() override;
    MultitouchSupportContactProvider(const MultitouchSupportContactProvider&) = delete;
    MultitouchSupportContactProvider& operator=(const MultitouchSupportContactProvider&) = delete;

    FrameHandler frameHandler() const override { return m_frameHandler->handler(); }
    void setFrameHandler(FrameHandler handler) override { m_frameHandler->setHandler(std::move(handler)); }

    TrackpadContactProviderStatus status() const override { return m_status; }
    void start() override;
    void stop() override;

    /// Waits until no handler of any provider runs: for an owner that stopped this provider and now destroys what its
    /// handler uses. Not from a handler.
    static void waitForHandlers();

  private:
    using StopDevice = std::int32_t (*)(void* device);

    OpenDynamicLibrary m_openLibrary;
    std::string m_path;
    /// Shared with the callbacks that run, so that these need no provider.
    std::shared_ptr<FrameHandlerSlot> m_frameHandler = std::make_shared<FrameHandlerSlot>();
    std::unique_ptr<DynamicLibrary> m_library;
    void* m_device = nullptr;
    StopDevice m_stopDevice = nullptr;
    TrackpadContactProviderStatus m_status;
};

}  // namespace kinesta
