#pragma once

#include <istream>
#include <memory>
#include <optional>
#include <string>

#include "input/recording/RecordingEvent.h"
#include "support/Result.h"

namespace kinesta {

/// What a recording says of itself before its first event.
struct RecordingHeader {
    std::string device;
    RecordedSettings settings;

    friend bool operator==(const RecordingHeader&, const RecordingHeader&) = default;
};

/// A recording read event by event, whatever its format, in constant memory.
class RecordingReading {
  public:
    virtual ~RecordingReading() = default;

    virtual const RecordingHeader& header() const = 0;

    /// The next event; nothing at the end; an error, "NAME:LINE: what is wrong", at input that is not of the format.
    /// After the end or an error, the same again.
    virtual Result<std::optional<RecordingEvent>> next() = 0;
};

/// Opens a recording of any of the known formats, told apart by how it begins: Kinesta's own, `evemu-record` and
/// `libinput record`. `name` is what errors call the input. `device`, if not null, is an evemu device description
/// that gives the axis ranges of a recording without any. Both streams must outlive the reader.
Result<std::unique_ptr<RecordingReading>> openRecording(std::istream& stream, std::string name,
                                                        std::istream* device = nullptr);

}  // namespace kinesta
