#include "input/recording/RecordingReading.h"

#include <algorithm>
#include <array>
#include <utility>

#include "input/recording/EvemuRecordingReader.h"
#include "input/recording/KinestaRecordingReader.h"
#include "input/recording/LibinputRecordingReader.h"
#include "input/recording/RecordingInput.h"

namespace kinesta {
namespace {

enum class Format { kinesta, evemu, libinput, unknown, undecided };

/// The format that has such a line.
Format formatOfLine(std::string_view line) {
    const auto begins = [line](std::string_view start) { return line.starts_with(start); };
    if (begins("{"))
        return Format::kinesta;
    if (begins("# EVEMU"))
        return Format::evemu;
    if (begins("# libinput record"))
        return Format::libinput;
    if (begins("#") || line.find_first_not_of(" \t\r") == std::string_view::npos)
        return Format::undecided;
    constexpr std::array<std::string_view, 6> kEvemu{"N:", "I:", "P:", "B:", "A:", "E:"};
    if (std::any_of(kEvemu.begin(), kEvemu.end(), begins))
        return Format::evemu;
    constexpr std::array<std::string_view, 7> kLibinput{
        "version:", "ndevices:", "libinput:", "system:", "devices:", "---", "%YAML"};
    return std::any_of(kLibinput.begin(), kLibinput.end(), begins) ? Format::libinput : Format::unknown;
}

struct Finding {
    Format format = Format::undecided;
    std::size_t line = 1;
};

/// Peeks up to the first line that shows the format, and not much further than one line may be long.
Finding findFormat(RecordingInput& input) {
    std::size_t begin = 0;
    for (Finding finding;; ++finding.line) {
        std::size_t end = std::string_view::npos;
        std::string_view text = input.peek(begin + 1);
        while ((end = text.find('\n', begin)) == std::string_view::npos) {
            const std::size_t known = text.size();
            text = known > RecordingInput::kMaximumLine ? text : input.peek(known + 1);
            if (text.size() == known)
                break;
        }
        if (begin == text.size() || begin > RecordingInput::kMaximumLine)
            return finding;
        const std::string_view line = text.substr(begin, end - begin);
        finding.format = formatOfLine(line.substr(std::min(line.find_first_not_of(" \t"), line.size())));
        if (finding.format != Format::undecided || end == std::string_view::npos)
            return finding;
        begin = end + 1;
    }
}

}  // namespace

Result<std::unique_ptr<RecordingReading>> openRecording(std::istream& stream, std::string name, std::istream* device) {
    auto input = std::make_unique<RecordingInput>(stream, std::move(name));
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (input->peek(kByteOrderMark.size()).starts_with(kByteOrderMark))
        input->skip(kByteOrderMark.size());
    const Finding finding = findFormat(*input);
    switch (finding.format) {
        case Format::kinesta:
            return KinestaRecordingReader::open(std::move(input));
        case Format::evemu:
            return EvemuRecordingReader::open(std::move(input), device);
        case Format::libinput:
            return LibinputRecordingReader::open(std::move(input));
        case Format::unknown:
        case Format::undecided:
            break;
    }
    if (input->isBroken())
        return input->fail(1, "the input cannot be read");
    return input->fail(finding.line, finding.format == Format::undecided
                                         ? "the input holds no recording"
                                         : "this is no recording of a known format: Kinesta's own, evemu-record or "
                                           "libinput record");
}

}  // namespace kinesta
