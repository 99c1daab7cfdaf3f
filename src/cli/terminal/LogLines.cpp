#include "cli/terminal/LogLines.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>

namespace kinesta {

void LogLines::write(std::string_view line) const {
    const auto now = std::chrono::system_clock::now();
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()) % 1000;
    std::tm local{};
    ::localtime_r(&seconds, &local);
    std::array<char, 16> clock{};
    std::array<char, 8> fraction{};
    std::strftime(clock.data(), clock.size(), "%H:%M:%S", &local);
    std::snprintf(fraction.data(), fraction.size(), ".%03d", static_cast<int>(milliseconds.count()));
    m_console.out << m_console.dim(std::string(clock.data()) + fraction.data()) << "  " << line << '\n' << std::flush;
}

}  // namespace kinesta
