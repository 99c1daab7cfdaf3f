// Reads any bytes as a recording; what follows a NUL is the description of an evemu device. What comes out must keep
// what a recording promises, and must be the same after it was written and read again.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "input/RecordingReading.h"
#include "input/RecordingWriter.h"

using namespace kinesta;

namespace {

std::vector<RecordingEvent> readAll(RecordingReading& reader) {
    std::vector<RecordingEvent> events;
    for (;;) {
        auto next = reader.next();
        if (!next && !next.error().message.starts_with("x:"))
            std::abort();
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
    if (!writer.writeHeader((*reader)->header()))
        std::abort();
    for (const RecordingEvent& event : events)
        if (!writer.write(event))
            std::abort();
    const auto again = openRecording(copy, "x");
    if (!again || (*again)->header().settings != (*reader)->header().settings || readAll(**again) != events)
        std::abort();
    return 0;
}
