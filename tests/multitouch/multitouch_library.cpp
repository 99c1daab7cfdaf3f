// A library with the functions of the trackpad framework. Its devices call back on threads of their own with the frames
// that a test posts. WITHOUT_... leaves one function out; NO_DEVICE is a machine without a trackpad.

#include <condition_variable>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <mutex>
#include <string>
#include <thread>

namespace {

using Callback = void (*)(void*, void*, unsigned long, double, unsigned long);

struct Frame {
    void* touches;
    unsigned long count;
    double time;
};

struct Device {
    void run() {
        std::unique_lock held(lock);
        for (;;) {
            changed.wait(held, [this] { return isEnding || isFlooding || !frames.empty(); });
            if (isEnding)
                break;
            Frame frame{nullptr, 0, 0};
            if (!frames.empty()) {
                frame = frames.front();
                frames.pop_front();
            }
            isCalling = true;
            held.unlock();
            callback(this, frame.touches, frame.count, frame.time, 0);
            held.lock();
            isCalling = false;
            changed.notify_all();
        }
        if (isAbandoned) {
            held.unlock();
            delete this;
        }
    }

    std::mutex lock;
    std::condition_variable changed;
    std::deque<Frame> frames;
    Callback callback = nullptr;
    bool isFlooding = false;
    bool isCalling = false;
    bool isEnding = false;
    bool isAbandoned = false;
    std::thread thread;
};

void ignore(const char*) {}

void (*note)(const char*) = ignore;
Device* last = nullptr;
Callback lastCallback = nullptr;
bool isStopWaiting = true;

Device& deviceAt(void* device) { return *static_cast<Device*>(device); }

}  // namespace

extern "C" {

void setNote(void (*wanted)(const char*)) { note = wanted; }

void* lastDevice() { return last; }

void post(void* device, const void* touches, unsigned long count, double time) {
    const std::lock_guard held(deviceAt(device).lock);
    deviceAt(device).frames.push_back({const_cast<void*>(touches), count, time});
    deviceAt(device).changed.notify_all();
}

void waitUntilDelivered(void* device) {
    std::unique_lock held(deviceAt(device).lock);
    deviceAt(device).changed.wait(held, [&] { return deviceAt(device).frames.empty() && !deviceAt(device).isCalling; });
}

void flood(void* device) {
    const std::lock_guard held(deviceAt(device).lock);
    deviceAt(device).isFlooding = true;
    deviceAt(device).changed.notify_all();
}

void letStopReturnAtOnce() { isStopWaiting = false; }

void callLate() { lastCallback(nullptr, nullptr, 0, 0, 0); }

#ifndef WITHOUT_CREATE
void* MTDeviceCreateDefault() {
    note("create");
#ifdef NO_DEVICE
    return nullptr;
#else
    return last = new Device;
#endif
}
#endif

#ifndef WITHOUT_REGISTER
void MTRegisterContactFrameCallback(void* device, Callback callback) {
    note("register");
    deviceAt(device).callback = lastCallback = callback;
}
#endif

#ifndef WITHOUT_START
std::int32_t MTDeviceStart(void* device, std::int32_t mode) {
    note(("start " + std::to_string(mode)).c_str());
    deviceAt(device).thread = std::thread([device] { deviceAt(device).run(); });
    if (std::getenv("KINESTA_TEST_TAP") != nullptr) {
        static unsigned char fingers[2][96];
        for (int i = 0; i < 2; ++i) {
            const std::int32_t idAndState[] = {i + 1, 4};
            const float place[] = {0.4F + 0.15F * static_cast<float>(i), 0.5F};
            std::memcpy(&fingers[i][16], idAndState, sizeof idAndState);
            std::memcpy(&fingers[i][32], place, sizeof place);
        }
        post(device, fingers, 2, 1.0);
        post(device, nullptr, 0, 1.1);
    }
    return -1;
}
#endif

#ifndef WITHOUT_STOP
// Waits for the thread of the device, except on that thread or if it shall not.
std::int32_t MTDeviceStop(void* device) {
    note("stop");
    Device& stopped = deviceAt(device);
    std::unique_lock held(stopped.lock);
    stopped.isEnding = true;
    stopped.changed.notify_all();
    if (!isStopWaiting || stopped.thread.get_id() == std::this_thread::get_id()) {
        stopped.isAbandoned = true;
        stopped.thread.detach();
        return -1;
    }
    held.unlock();
    stopped.thread.join();
    delete &stopped;
    return -1;
}
#endif

}  // extern "C"
