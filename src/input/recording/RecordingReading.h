#pragma once

#include <istream>
#include <memory>
#include <optional>
#include <string>

#include "input/recording/RecordingEvent.h"
#include "support/Result.h"

namespace kinesta {

/// The part of a recording before its first event.
struct RecordingHeader {
    std::string device;
    RecordedSettings settings;

    friend bool operator==(const RecordingHeader&, const RecordingHeader&) = default;
};

/// Reads a recording of any format event by event, in constant memory.
class RecordingReading {
  public:
    virtual ~RecordingReading() = default;

    virtual const RecordingHeader& header() const = 0;

    /// The next event; nothing at the end; an error "NAME:LINE: what is wrong" at malformed input. Both are final.
    virtual Result<std::optional<RecordingEvent>> next() = 0;
};

/// Opens a recording and finds its format by how it begins: Kinesta's own, `evemu-record` or `libinput record`. Errors
/// call the input `name`. `device`, if not null, is an evemu device description
/// with the axis ranges of a recording that has none. Both streams must outlive the reader.
Result<std::unique_ptr<RecordingReading>> openRecording(std::istream& stream, std::string name,
                                                        std::istream* device = nullptr);

}  // namespace kinesta
