#pragma once

#include <cstddef>
#include <string>

namespace kinesta {

/// A database that dconf itself has written, with the touchpad's "send-events" as 'disabled' and a number under
/// "/org/gnome/desktop/interface/cursor-size". Another text is put in the place of 'disabled', which is the last.
inline std::string dconfSample(const std::string& sendEvents = "disabled") {
    const std::string digits =
        "4756617269616e740000000000000000180000001c0100000000002809000000000000000100000002000000030000000400"
        "000004000000070000000700000008000000b988fdda020000001c01000008004c00240100002c0100004b50900b04000000"
        "2c01000004004c003001000034010000b0b72430010000003401000006004c003c010000400100004e338763050000004001"
        "000009004c004c01000050010000d4b50200ffffffff5001000001004c005401000058010000678a57490000000058010000"
        "0c004c00640100006801000039c53b4f00000000680100000a004c007401000078010000bf6bed7b06000000780100000b00"
        "7600880100008e0100009a710e7b030000008e0100000b007600a0010000ab0100006465736b746f702f0600000005000000"
        "6f72672f02000000676e6f6d652f000000000000746f7563687061642f000000080000002f00000001000000706572697068"
        "6572616c732f03000000696e746572666163652f000007000000637572736f722d73697a6500000000002100000000697365"
        "6e642d6576656e74730000000000000064697361626c6564000073";
    std::string bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2)
        bytes.push_back(static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16)));
    constexpr std::size_t kEndOfValue = 0x118;
    const std::size_t value = bytes.find("disabled");
    bytes.replace(value, 8, sendEvents);
    bytes[kEndOfValue] = static_cast<char>(bytes[kEndOfValue] + static_cast<int>(sendEvents.size()) - 8);
    return bytes;
}

}  // namespace kinesta
