#include "input/recording/RecordingWriter.h"

#include <cmath>

#include "input/ContactIdSet.h"
#include "input/TapWaitingInterval.h"
#include "support/Json.h"
#include "support/Text.h"

namespace kinesta {
namespace {

// Each appends its part of a line and returns why the format cannot hold it, if so.
using Problem = std::optional<std::string>;

Problem append(std::string& line, const PadFrame& frame) {
    line += "\"touches\":[";
    for (const TouchSample& sample : frame.samples) {
        if (!std::isfinite(sample.position.x) || !std::isfinite(sample.position.y))
            return "a contact's position is not finite";
        line += &sample == frame.samples.begin() ? "[" : ",[";
        line += std::to_string(sample.id) + ",";
        appendNumber(line, sample.position.x);
        line += ",";
        appendNumber(line, sample.position.y);
        line += "]";
    }
    line += "]";
    if (ContactIdSet(frame.samples).size() != frame.samples.size())
        return "a contact's identifier is there twice";
    if (!frame.received)
        return std::nullopt;
    if (!RecordingFormat::isTime(*frame.received))
        return "the time of arrival is not within 9.2e9 seconds";
    line += ",\"received\":";
    appendNumber(line, *frame.received);
    return std::nullopt;
}

Problem append(std::string& line, PadButton button) {
    line += button == PadButton::down ? "\"pointer\":\"down\"" : "\"pointer\":\"up\"";
    return std::nullopt;
}

Problem append(std::string& line, const PadPressure& pressure) {
    line += "\"pressure\":" + std::to_string(pressure.stage);
    return std::nullopt;
}

Problem append(std::string& line, const RecordedSettings& settings) {
    std::string members;
    const auto key = [&members](std::string_view name) {
        members += members.empty() ? "\"" : ",\"";
        members += name;
        members += "\":";
    };
    const auto boolean = [&](std::string_view name, const std::optional<bool>& value) {
        if (value) {
            key(name);
            members += *value ? "true" : "false";
        }
    };
    boolean(SettingsKeys::gesturesEnabled, settings.gesturesEnabled);
    if (settings.tapWaitingMilliseconds) {
        if (!TapWaitingInterval::fromRawValue(*settings.tapWaitingMilliseconds))
            return "the tap waiting interval is not one of those that can be set";
        key(SettingsKeys::tapWaitingInterval);
        members += std::to_string(*settings.tapWaitingMilliseconds);
    }
    boolean(SettingsKeys::cornerPalmRejectionEnabled, settings.cornerPalmRejectionEnabled);
    if (settings.cornerPalmRejectionSensitivity) {
        if (!std::isfinite(*settings.cornerPalmRejectionSensitivity))
            return "the sensitivity of the corner palm rejection is not finite";
        key(SettingsKeys::cornerPalmRejectionSensitivity);
        appendNumber(members, *settings.cornerPalmRejectionSensitivity);
    }
    line += "\"settings\":{" + members + "}";
    return std::nullopt;
}

Error refusal(const std::string& problem) { return Error{"this cannot be recorded: " + problem}; }

}  // namespace

Outcome RecordingWriter::writeHeader(const RecordingHeader& header) {
    m_line = "{\"kinesta\":\"recording\",\"version\":" + std::to_string(RecordingFormat::kVersion);
    if (!header.device.empty())
        m_line += ",\"device\":" + Json(header.device).text();
    if (header.settings != RecordedSettings{}) {
        m_line += ",";
        if (const Problem problem = append(m_line, header.settings))
            return refusal(*problem);
    }
    m_line += "}\n";
    return writeLine();
}

Outcome RecordingWriter::write(const RecordingEvent& event) {
    m_line = "{\"t\":";
    appendNumber(m_line, eventTime(event));
    m_line += ",";
    const auto appendContent = [this](const auto& content) { return append(m_line, content); };
    const auto* change = std::get_if<SettingsChange>(&event);
    if (const Problem problem =
            change ? appendContent(change->settings) : std::visit(appendContent, std::get<PadEvent>(event).content))
        return refusal(*problem);
    if (const Problem problem = m_order.take(eventTime(event)))
        return refusal(*problem);
    m_line += "}\n";
    return writeLine();
}

Outcome RecordingWriter::writeLine() {
    m_output.write(m_line.data(), static_cast<std::streamsize>(m_line.size()));
    if (m_flush == Flush::everyLine)
        m_output.flush();
    if (!m_output)
        return Error{"the recording cannot be written"};
    return success();
}

}  // namespace kinesta
