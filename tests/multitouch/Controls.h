#pragma once

#include <dlfcn.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace kinesta::testing {

/// Touch records as the trackpad framework lays them out; bytes that must not be read are all ones.
class TouchRecords {
  public:
    TouchRecords& add(std::int32_t id, std::int32_t state, float x, float y) {
        m_bytes.resize(m_bytes.size() + 96, 0xFF);
        put(16, id);
        put(20, state);
        put(32, x);
        put(36, y);
        return *this;
    }
    const void* data() const { return m_bytes.data(); }
    unsigned long count() const { return m_bytes.size() / 96; }

  private:
    template <typename Value>
    void put(std::size_t offset, Value value) {
        std::memcpy(&m_bytes[m_bytes.size() - 96 + offset], &value, sizeof value);
    }

    std::vector<unsigned char> m_bytes;
};

/// What a test does with a multitouch library that is loaded, besides reading it.
class MultitouchControls {
  public:
    /// The library at this path must be loaded, and stay so.
    explicit MultitouchControls(const std::string& path) : m_library(::dlopen(path.c_str(), RTLD_NOW | RTLD_NOLOAD)) {
        ::dlclose(m_library);
    }

    /// Loads the library for the rest of the process.
    static MultitouchControls loadForGood(const std::string& path) {
        ::dlopen(path.c_str(), RTLD_NOW | RTLD_NODELETE);
        return MultitouchControls(path);
    }

    /// The library reports its calls from now on.
    void setNote(void (*note)(const char*)) const { function<void (*)(void (*)(const char*))>("setNote")(note); }
    /// The device that was made last.
    void* device() const { return function<void* (*)()>("lastDevice")(); }
    /// The thread of the device calls back with this frame.
    void post(void* device, const void* records, unsigned long count, double time) const {
        function<void (*)(void*, const void*, unsigned long, double)>("post")(device, records, count, time);
    }
    /// The same. Returns when the callback has returned.
    void deliver(void* device, const void* records, unsigned long count, double time) const {
        post(device, records, count, time);
        function<void (*)(void*)>("waitUntilDelivered")(device);
    }
    /// The thread of the device calls back without a pause until the device is stopped.
    void flood(void* device) const { function<void (*)(void*)>("flood")(device); }
    /// Stopping a device no longer waits for a callback that runs.
    void letStopReturnAtOnce() const { function<void (*)()>("letStopReturnAtOnce")(); }
    /// Calls back on this thread, whether or not a device runs.
    void callLate() const { function<void (*)()>("callLate")(); }

  private:
    template <typename Function>
    Function function(const char* name) const {
        return reinterpret_cast<Function>(::dlsym(m_library, name));
    }

    void* m_library;
};

}  // namespace kinesta::testing
