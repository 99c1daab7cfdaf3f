#include "cli/terminal/PadScreen.h"

#include <algorithm>

#include "cli/terminal/TextTable.h"

namespace kinesta {
namespace {

// A trackpad is about 1.6 times as wide as deep, a character about half as wide as high.
constexpr int kPictureColumns = 52;
constexpr int kPictureRows = 15;
constexpr int kMargin = 2;
constexpr std::size_t kRemembered = 4;
constexpr int kOtherRows = 9;  // title, blank lines, frame, gestures
constexpr Seconds kDrawingInterval = 0.025;

}  // namespace

bool PadScreen::fits(const Console& console) {
    return console.outIsTerminal && console.columns >= kPictureColumns + 2 * kMargin + 2 &&
           console.rows >= kPictureRows + kOtherRows;
}

PadScreen::PadScreen(const Console& console, Desktop& desktop)
    : m_console(console), m_desktop(desktop), m_picture(kPictureColumns, kPictureRows) {
    m_desktop.takeTerminal();
}

void PadScreen::setTitle(std::string title, std::string detail) {
    m_title = std::move(title);
    m_detail = std::move(detail);
    m_picture.clear();
    m_drawnAt = -1e300;
    draw();
}

void PadScreen::show(const PadEvent& event) {
    m_now = event.time;
    // Movements are drawn at a limited rate. Landing and lifting are drawn at once: the next event may come much later.
    const Seconds sinceDrawn = m_now - m_drawnAt;
    bool isToBeDrawn = !(sinceDrawn >= 0 && sinceDrawn < kDrawingInterval);  // also if a time is no number
    if (const auto* frame = std::get_if<PadFrame>(&event.content)) {
        isToBeDrawn |= frame->samples.size() != m_contactCount;
        m_contactCount = frame->samples.size();
        m_picture.show(frame->samples, event.time);
    } else if (const auto* pointer = std::get_if<PadButton>(&event.content)) {
        isToBeDrawn = true;
        m_picture.setPressed(*pointer == PadButton::down);
    }
    if (isToBeDrawn)
        draw();
}

void PadScreen::tell(std::string gesture, std::string consequence) {
    // A slide reports many steps; it gets one line.
    if (!m_gestures.empty() && m_gestures.front().gesture == gesture)
        m_gestures.pop_front();
    m_gestures.push_front({std::move(gesture), std::move(consequence)});
    if (m_gestures.size() > kRemembered)
        m_gestures.pop_back();
    draw();
}

void PadScreen::stopUntilContinued() {
    m_desktop.stopUntilContinued();
    draw();
}

void PadScreen::draw() {
    m_drawnAt = m_now;
    const std::string margin(kMargin, ' ');
    const auto width = static_cast<std::size_t>(m_console.columns - kMargin);
    std::string screen = "\x1b[H";
    const auto put = [&](const std::string& line) { screen += margin + line + "\x1b[K\n"; };
    put("");
    const std::string title = fitted(m_title, width);
    const std::size_t left = width - std::min(width, displayWidth(title) + kMargin);
    put(m_console.bold(title) + margin + m_console.dim(fitted(m_detail, left)));
    put("");
    for (const std::string& line : m_picture.lines(m_now))
        put(line);
    put("");
    for (std::size_t i = 0; i < kRemembered; ++i) {
        if (i >= m_gestures.size()) {
            put(i == 0 ? m_console.dim("Waiting for a gesture…") : "");
            continue;
        }
        const auto& shown = m_gestures[i];
        const std::string gesture = fitted(shown.gesture, width);
        const std::size_t rest = width - std::min(width, displayWidth(gesture) + 5);
        const std::string consequence = "  →  " + fitted(shown.consequence, rest);
        put(i == 0 ? m_console.bold(gesture) + m_console.good(consequence) : m_console.dim(gesture + consequence));
    }
    screen += "\x1b[J";
    m_console.out << screen << std::flush;
}

}  // namespace kinesta
