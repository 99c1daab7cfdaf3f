#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "input/evdev/EvdevDescription.h"
#include "input/evdev/EvdevRecordingEvents.h"
#include "input/recording/RecordingInput.h"
#include "input/recording/RecordingReading.h"
#include "input/recording/YamlEvents.h"

namespace kinesta {

/// Reads the recordings of `libinput record`: a YAML mapping whose list of devices holds, device by device, what the
/// device is and then all its events. The first trackpad counts; what follows it is not read.
class LibinputRecordingReader final : public RecordingReading {
  public:
    /// Reads up to the first trackpad's events.
    static Result<std::unique_ptr<RecordingReading>> open(std::unique_ptr<RecordingInput> input);

    const RecordingHeader& header() const override { return m_header; }
    Result<std::optional<RecordingEvent>> next() override;

  private:
    /// Where in the list of events reading stands.
    enum class Place { events, item, evdev, end };

    explicit LibinputRecordingReader(std::unique_ptr<RecordingInput> input)
        : m_input(std::move(input)), m_yaml(*m_input) {}

    bool findTouchpad();
    bool findTouchpadInDevices();
    bool findEventsInDevice();
    bool readDescription(EvdevDescription& description);
    bool readCodes(EvdevDescription& description);
    bool readAxes(EvdevDescription& description);
    /// Calls `readValue` with each key, at its value.
    bool readMapping(const std::string& name, const std::function<bool(std::string_view key)>& readValue);
    bool readIntegers(const std::function<void(std::int64_t)>& take);
    bool readEvent();
    bool advance();
    bool expect(YamlEvents::Kind kind, std::string_view what);
    std::optional<std::string_view> nextKey();
    bool fail(std::string_view what);

    std::unique_ptr<RecordingInput> m_input;
    YamlEvents m_yaml;
    RecordingHeader m_header;
    std::optional<EvdevRecordingEvents> m_events;
    Place m_place = Place::end;
};

}  // namespace kinesta
