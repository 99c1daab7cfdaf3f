// Reads bytes as a recording, and those after a NUL as the description of its evemu device. Every event must be the
// same after it was written and read again.

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "input/recording/RecordingReading.h"
#include "input/recording/RecordingWriter.h"
#include "require.h"

using namespace kinesta;

namespace {

std::vector<RecordingEvent> readAll(RecordingReading& reader) {
    std::vector<RecordingEvent> events;
    for (;;) {
        auto next = reader.next();
        require(next || next.error().message.starts_with("x:"));
        if (!next || !*next)
            return events;
        events.push_back(**next);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::size_t end = std::min(text.find('\0'), size);
    std::istringstream input{std::string(text.substr(0, end))};
    std::istringstream device{std::string(text.substr(std::min(end + 1, size)))};
    const auto reader = openRecording(input, "x", end < size ? &device : nullptr);
    if (!reader)
        return 0;
    const auto events = readAll(**reader);

    std::stringstream copy;
    RecordingWriter writer(copy);
    require(writer.writeHeader((*reader)->header()).isValue());
    for (const RecordingEvent& event : events)
        require(writer.write(event).isValue());
    const auto again = openRecording(copy, "x");
    require(again && (*again)->header().settings == (*reader)->header().settings && readAll(**again) == events);
    return 0;
}
