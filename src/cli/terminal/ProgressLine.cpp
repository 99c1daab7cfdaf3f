#include "cli/terminal/ProgressLine.h"

#include <algorithm>

namespace kinesta {
namespace {

constexpr std::uint64_t kStepsBetweenLooks = 4096;
constexpr std::chrono::milliseconds kPatience{500};
constexpr std::chrono::milliseconds kUpdateInterval{100};
constexpr std::size_t kBarWidth = 30;

}  // namespace

ProgressLine::ProgressLine(const Console& console, std::string label)
    : m_console(console), m_label(std::move(label)), m_nextUpdate(std::chrono::steady_clock::now() + kPatience) {}

ProgressLine::~ProgressLine() {
    if (m_isShown)
        m_console.err << "\r\x1b[K" << std::flush;
}

void ProgressLine::step(const std::function<std::optional<double>()>& progress) {
    if (!m_console.errIsTerminal || ++m_steps % kStepsBetweenLooks != 0)
        return;
    const auto now = std::chrono::steady_clock::now();
    if (now < m_nextUpdate)
        return;
    m_nextUpdate = now + kUpdateInterval;
    m_isShown = true;
    m_console.err << "\r\x1b[K" << m_label << "  ";
    if (const auto share = progress()) {
        const auto filled = static_cast<std::size_t>(std::clamp(*share, 0.0, 1.0) * kBarWidth);
        for (std::size_t i = 0; i < kBarWidth; ++i)
            m_console.err << (i < filled ? "█" : "░");
        m_console.err << ' ' << static_cast<int>(std::clamp(*share, 0.0, 1.0) * 100) << " %";
    } else {
        m_console.err << m_steps << " events";
    }
    m_console.err << std::flush;
}

}  // namespace kinesta
