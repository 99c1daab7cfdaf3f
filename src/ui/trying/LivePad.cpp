#include "ui/trying/LivePad.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "ui/trying/LivePadPainter.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

QAccessibleInterface* makeAccessible(const QString& name, QObject* object) {
    if (name != QLatin1String(LivePad::staticMetaObject.className()))
        return nullptr;
    return new QAccessibleWidget(static_cast<LivePad*>(object), QAccessible::Graphic);
}

void letScreenReadersKnow() {
    static const bool isInstalled = [] {
        QAccessible::installFactory(&makeAccessible);
        return true;
    }();
    static_cast<void>(isInstalled);
}

}  // namespace

LivePad::LivePad(const Clock& clock, int width) : m_clock(clock), m_width(width) {
    letScreenReadersKnow();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, [this] { refresh(); });
}

void LivePad::setPadWidth(int width) {
    if (width == m_width)
        return;
    m_width = width;
    updateGeometry();
    changeGround();
}

void LivePad::setProportions(double proportions) {
    constexpr double kLeast = 1.2;
    constexpr double kMost = 1.8;
    const double shown = proportions >= kLeast && proportions <= kMost ? proportions : kUsualProportions;
    if (shown == m_proportions)
        return;
    m_proportions = shown;
    updateGeometry();
    changeGround();
}

void LivePad::setPalmRejection(const CornerPalmRejectionSettings& settings) {
    if (settings == m_palms)
        return;
    m_palms = settings;
    m_model.setPalmRejection(settings);
    changeGround();
}

void LivePad::setReading(bool isReading) {
    if (!isReading)
        m_model.clear();
    if (isReading == m_isReading)
        return;
    m_isReading = isReading;
    changeGround();
    refreshSoon();
}

void LivePad::take(const PadEvent& event) {
    if (!m_isReading)
        return;
    m_model.take(event);
    refreshSoon();
}

void LivePad::showGesture(const DetectedGesture& gesture, const QString& text) {
    m_model.tell(gesture, text.toStdString(), m_clock.uptime());
    refreshSoon();
}

QRectF LivePad::pad() const {
    const double margin = std::ceil(LivePadPainter::margin());
    return {0, margin, static_cast<double>(m_width), std::round(m_width / m_proportions)};
}

QSize LivePad::sizeHint() const {
    const QRectF box = pad();
    return {m_width,
            static_cast<int>(std::ceil(box.bottom() + std::max(LivePadPainter::margin(), LivePadPainter::lip())))};
}

void LivePad::changeGround() {
    m_ground = {};
    update();
}

double LivePad::refreshInterval() const {
    constexpr double kSlowest = 30;
    constexpr double kFastest = 240;
    return 1000 / std::clamp(screen()->refreshRate(), kSlowest, kFastest);
}

/// At the next refresh of the screen, and at once if none was due for a while.
void LivePad::refreshSoon() {
    const double interval = refreshInterval();
    const double since = m_sinceRefresh.isValid() ? static_cast<double>(m_sinceRefresh.elapsed()) : interval;
    startTimer(std::max(0.0, interval - since));
}

void LivePad::startTimer(double milliseconds) {
    // A window that is not seen catches up when it is painted again.
    const QWindow* shown = window()->windowHandle();
    if (!isVisible() || shown == nullptr || !shown->isExposed()) {
        m_isBehind = true;
        return;
    }
    const int wait = static_cast<int>(std::ceil(milliseconds));
    if (!m_timer.isActive() || m_timer.remainingTime() > wait)
        m_timer.start(wait);
}

void LivePad::refresh() {
    m_sinceRefresh.start();
    ++m_refreshCount;
    m_isBehind = false;
    m_model.setReducesMotion(WindowTheme::reducesMotion());
    const Uptime now = m_clock.uptime();
    std::vector<LiveTouch> touches = m_model.touches(now);
    std::optional<LiveGesture> gesture = m_model.gesture(now);
    updateWhatDiffers(touches, gesture);
    m_touches = std::move(touches);
    m_gesture = std::move(gesture);
    if (const auto next = m_model.nextChange(now))
        startTimer(std::max((*next - now) * 1000, refreshInterval()));
}

void LivePad::updateWhatDiffers(const std::vector<LiveTouch>& touches, const std::optional<LiveGesture>& gesture) {
    const LivePadPainter painter(pad(), WindowTheme::current());
    const auto repaint = [&](const auto& mark) { update(painter.bounds(mark).toAlignedRect()); };
    // Both in the order of their numbers.
    auto before = m_touches.begin();
    auto after = touches.begin();
    while (before != m_touches.end() || after != touches.end()) {
        const bool isNew = before == m_touches.end() || (after != touches.end() && after->number < before->number);
        const bool isGone = !isNew && (after == touches.end() || before->number < after->number);
        if (isNew) {
            repaint(*after++);
        } else if (isGone) {
            repaint(*before++);
        } else {
            if (*before != *after) {
                repaint(*before);
                repaint(*after);
            }
            ++before;
            ++after;
        }
    }
    if (m_gesture == gesture)
        return;
    if (m_gesture)
        repaint(*m_gesture);
    if (gesture)
        repaint(*gesture);
}

void LivePad::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    refreshSoon();
}

void LivePad::hideEvent(QHideEvent* event) {
    m_timer.stop();
    QWidget::hideEvent(event);
}

void LivePad::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const AppTheme& theme = WindowTheme::current();
    const LivePadPainter drawing(pad(), theme);
    if (!m_isReading)
        return drawing.paintOff(painter);
    const double ratio = devicePixelRatioF();
    if (m_ground.isNull() || m_groundTheme != theme || m_ground.devicePixelRatio() != ratio) {
        m_ground = QPixmap(size() * ratio);
        m_ground.setDevicePixelRatio(ratio);
        m_ground.fill(Qt::transparent);
        m_groundTheme = theme;
        QPainter ground(&m_ground);
        ground.setRenderHint(QPainter::Antialiasing);
        drawing.paintGround(ground, m_palms);
    }
    painter.drawPixmap(0, 0, m_ground);
    if (m_gesture)
        drawing.paintGesture(painter, *m_gesture);
    for (const LiveTouch& touch : m_touches)
        drawing.paintTouch(painter, touch);
    if (!m_timer.isActive() && (m_isBehind || m_model.nextChange(m_clock.uptime())))
        refreshSoon();
}

}  // namespace kinesta
