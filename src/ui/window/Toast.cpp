#include "ui/window/Toast.h"

#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QHBoxLayout>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "platform/qt/ThemePalette.h"
#include "ui/widgets/Announcer.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kHeight = 44;
constexpr double kRadius = 10;
constexpr double kFromBottom = 16;
constexpr int kAppear = 160;
constexpr int kVanish = 200;
/// Dark in both themes, as other programs' messages of this kind are.
constexpr Rgb kGround{0x26, 0x27, 0x2E};
constexpr Rgb kWords{0xEC, 0xED, 0xF2};
constexpr Rgb kAction{0xA3, 0xA8, 0xFF};

bool isDark(const AppTheme& theme) { return theme.text.red > theme.canvas.red; }

QPalette toastPalette() {
    const AppTheme& theme = WindowTheme::current();
    QPalette palette = themePalette(theme);
    const QColor words = asQColor(isDark(theme) ? theme.text : kWords);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, words);
    palette.setColor(QPalette::Link, asQColor(isDark(theme) ? theme.accent : kAction));
    return palette;
}

}  // namespace

Toast::Toast(QWidget* page, QWidget* window)
    : QWidget(window), m_page(page), m_text(new QLabel), m_button(new QPushButton) {
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(Unit::of(16), Unit::of(4), Unit::of(8), Unit::of(4));
    line->setSpacing(Unit::of(16));
    line->addWidget(m_text, 1);
    line->addWidget(m_button);
    m_text->setTextFormat(Qt::PlainText);
    m_button->setProperty("link", true);
    m_button->setFlat(true);
    m_lifetime.setSingleShot(true);
    m_lifetime.setInterval(lifetime);
    connect(&m_lifetime, &QTimer::timeout, this, &Toast::dismiss);
    connect(m_button, &QPushButton::clicked, this, [this] {
        const auto action = std::exchange(m_onAction, {});
        dismiss();
        if (action)
            action();
    });
    connect(&m_fade, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        m_opacity = value.toDouble();
        if (auto* effect = qobject_cast<QGraphicsOpacityEffect*>(graphicsEffect()))
            effect->setOpacity(m_opacity);
    });
    connect(&m_fade, &QVariantAnimation::finished, this, [this] {
        setGraphicsEffect(nullptr);
        if (m_opacity < .5)
            hide();
    });
    page->installEventFilter(this);
    m_button->installEventFilter(this);
    hide();
}

void Toast::tell(const QString& text, const QString& action, std::function<void()> onAction) {
    m_onAction = std::move(onAction);
    m_text->setText(text);
    m_button->setText(action);
    m_button->setVisible(!action.isEmpty());
    setPalette(toastPalette());
    setAccessibleName(text);
    place();
    fade(true);
    raise();
    takeLastTabStop();
    wait();
    Announcer::announce(*this, text);
}

void Toast::takeLastTabStop() {
    if (window()->previousInFocusChain() != m_button)
        setTabOrder(window()->previousInFocusChain(), m_button);
}

void Toast::dismiss() {
    m_lifetime.stop();
    if (isVisible())
        fade(false);
}

bool Toast::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_page &&
        (event->type() == QEvent::Resize || event->type() == QEvent::Show || event->type() == QEvent::Hide))
        place();
    if (watched == m_button && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        wait();
    return QWidget::eventFilter(watched, event);
}

bool Toast::event(QEvent* event) {
    const bool done = QWidget::event(event);
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave)
        wait();
    if (event->type() == QEvent::FontChange)
        place();
    return done;
}

void Toast::wait() {
    if (underMouse() || m_button->hasFocus())
        m_lifetime.stop();
    else if (isVisible())
        m_lifetime.start();
}

void Toast::place() {
    const bool isOverPage = m_page->isVisibleTo(window());
    const QSize area = isOverPage ? m_page->size() : window()->size();
    const QPoint origin = isOverPage ? m_page->mapTo(window(), QPoint()) : QPoint();
    setMinimumHeight(Unit::of(kHeight));
    m_text->setWordWrap(false);
    const int room = area.width() - 2 * Unit::of(kFromBottom);
    const bool isLong = sizeHint().width() > room;
    m_text->setWordWrap(isLong);
    const int width = isLong ? room : sizeHint().width();  // the hint of text that wraps is narrow
    const int height = layout()->hasHeightForWidth() ? std::max(minimumHeight(), layout()->totalHeightForWidth(width))
                                                     : std::max(minimumHeight(), sizeHint().height());
    setGeometry(origin.x() + (area.width() - width) / 2, origin.y() + area.height() - height - Unit::of(kFromBottom),
                width, height);
}

void Toast::fade(bool isAppearing) {
    show();
    m_fade.stop();
    if (WindowTheme::reducesMotion()) {
        m_opacity = isAppearing ? 1 : 0;
        setGraphicsEffect(nullptr);
        setVisible(isAppearing);
        return;
    }
    auto* effect = new QGraphicsOpacityEffect(this);
    setGraphicsEffect(effect);
    m_fade.setDuration(isAppearing ? kAppear : kVanish);
    m_fade.setStartValue(isAppearing ? 0.0 : 1.0);
    m_fade.setEndValue(isAppearing ? 1.0 : 0.0);
    m_fade.start();
}

void Toast::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = Unit::of(kRadius);
    painter.setBrush(asQColor(isDark(theme) ? theme.control : kGround));
    painter.setPen(isDark(theme) ? QPen(asQColor(theme.line)) : QPen(Qt::NoPen));
    painter.drawRoundedRect(QRectF(rect()).adjusted(.5, .5, -.5, -.5), radius, radius);
}

}  // namespace kinesta
