#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "input/recording/JsonScanner.h"
#include "input/recording/RecordingEvent.h"
#include "input/recording/RecordingReading.h"

namespace kinesta {

/// Decodes single lines of Kinesta's own recordings. Errors do not name the line.
class RecordingLineDecoder {
  public:
    Result<RecordingHeader> header(std::string_view line);
    Result<RecordingEvent> event(std::string_view line);

  private:
    bool takeVersion(std::string_view line);
    bool takeHeader(JsonScanner& json, RecordingHeader& header);
    bool takeEvent(JsonScanner& json, RecordingEvent& event);
    std::string takeTime(JsonScanner& json, std::string_view key, Seconds& time);
    bool takeTouches(JsonScanner& json, TouchSamples& samples);
    bool takeTouch(JsonScanner& json, TouchSample& sample);
    bool areIdsUnique(const TouchSamples& samples);
    bool takeButton(JsonScanner& json, PadButton& button);
    bool takeSettings(JsonScanner& json, RecordedSettings& settings);
    bool takeBoolean(JsonScanner& json, std::string_view key, std::optional<bool>& value);
    bool fail(std::string problem);
    Error error(const JsonScanner& json) const;

    std::string m_problem;
    std::vector<ContactId> m_ids;
};

}  // namespace kinesta
