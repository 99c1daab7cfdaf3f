#include "ui/action/ShortcutRecorder.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "app/Desktop.h"
#include "platform/qt/ThemePalette.h"
#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/Announcer.h"
#include "ui/widgets/Ground.h"
#include "ui/widgets/SymbolIcon.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

using State = ShortcutRecording::State;

constexpr double kWidth = 300;
constexpr double kHeight = 38;
constexpr double kRadius = 8;
constexpr double kPadding = 10;
constexpr double kCapsPadding = 8;
constexpr double kButton = 28;
constexpr double kButtonPadding = 5;
constexpr double kIcon = 16;

/// A button that is pressed to record, with the shortcut as its value.
class RecorderInterface final : public QAccessibleWidget {
  public:
    explicit RecorderInterface(ShortcutRecorder* recorder) : QAccessibleWidget(recorder, QAccessible::Button) {}

    QString text(QAccessible::Text text) const override {
        if (text == QAccessible::Value)
            return recorder().words();
        // Qt hands no value of a button to screen readers on Linux, but its description.
        if (text == QAccessible::Description)
            return (recorder().words() + QLatin1Char('\n') + recorder().hint()).trimmed();
        return QAccessibleWidget::text(text);
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& action) override {
        if (action == pressAction())
            recorder().start();
        else
            QAccessibleWidget::doAction(action);
    }

  private:
    ShortcutRecorder& recorder() const { return *static_cast<ShortcutRecorder*>(widget()); }
};

QAccessibleInterface* makeInterface(const QString& name, QObject* object) {
    if (name != QLatin1String(ShortcutRecorder::staticMetaObject.className()))
        return nullptr;
    return new RecorderInterface(static_cast<ShortcutRecorder*>(object));
}

NativeKey nativeKey(const QKeyEvent& event) {
    return {event.nativeScanCode(), event.nativeVirtualKey(), event.nativeModifiers()};
}

ShortcutRecording::Meaning meaningOf(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Escape:
            return ShortcutRecording::Meaning::cancel;
        case Qt::Key_Delete:
        case Qt::Key_Backspace:
            return ShortcutRecording::Meaning::clear;
        default:
            return ShortcutRecording::Meaning::key;
    }
}

}  // namespace

ShortcutRecorder::ShortcutRecorder(Desktop& desktop, QWidget* parent)
    : QWidget(parent),
      m_recording(desktop.keyRecording()),
      m_caps(new KeyCapRow(this)),
      m_clear(new QToolButton(this)) {
    QAccessible::installFactory(&makeInterface);  // once, however often it is called
    setAccessibleName(tr("Record shortcut"));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    m_caps->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_clear->setAccessibleName(tr("Clear shortcut"));
    m_clear->setToolTip(tr("Clear shortcut"));
    m_clear->setIcon(SymbolIcon::of(windowSymbol(WindowSymbol::clear)));
    m_clear->setAutoRaise(true);
    m_clear->setFocusPolicy(Qt::TabFocus);
    auto* line = new QHBoxLayout(this);
    line->setSpacing(0);
    line->addWidget(m_caps);
    line->addStretch();
    line->addWidget(m_clear);
    connect(m_clear, &QToolButton::clicked, this, [this] {
        if (m_clear->hasFocus())
            setFocus(Qt::OtherFocusReason);
        m_recording.clear();
        refresh();
    });
    m_recording.onRecorded = [this](const std::optional<RecordedShortcut>& shortcut) {
        const RecordedShortcut value = shortcut.value_or(RecordedShortcut{});
        Q_EMIT recorded(shortcut.has_value(), value.keyCode, value.modifiers);
    };
    arrange();
    refresh();
}

void ShortcutRecorder::setShortcut(std::optional<std::uint16_t> keyCode, ShortcutModifiers modifiers) {
    m_recording.setShortcut(keyCode ? std::optional(RecordedShortcut{*keyCode, modifiers}) : std::nullopt);
    refresh();
}

void ShortcutRecorder::start() {
    if (!isEnabled())
        return;
    setFocus(Qt::OtherFocusReason);
    m_recording.start();
    refresh();
}

QString ShortcutRecorder::words() const {
    if (isListening())
        return tr("Listening…");
    const auto caps = m_recording.caps();
    return caps.empty() ? tr("No shortcut") : QString::fromStdString(inWords(caps));
}

QSize ShortcutRecorder::sizeHint() const {
    const QSize usual = Unit::of(kWidth, kHeight);
    return {std::max(usual.width(), layout()->minimumSize().width()), usual.height()};
}

QSize ShortcutRecorder::minimumSizeHint() const { return {layout()->minimumSize().width(), Unit::of(kHeight)}; }

bool ShortcutRecorder::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            // Before the window's own shortcuts.
            if (!isListening() && !isStillHeld(static_cast<QKeyEvent&>(*event)))
                break;
            event->accept();
            return true;
        case QEvent::KeyPress:
            // Before Tab moves the focus.
            if (!pressKey(static_cast<QKeyEvent&>(*event)))
                break;
            event->accept();
            return true;
        case QEvent::KeyRelease:
            m_lastRelease = static_cast<QKeyEvent&>(*event).timestamp();
            if (!isListening() || static_cast<QKeyEvent&>(*event).isAutoRepeat())
                break;
            m_recording.release(nativeKey(static_cast<QKeyEvent&>(*event)));
            refresh();
            return true;
        default:
            break;
    }
    return QWidget::event(event);
}

/// A key that was pressed while we listened must not go on to move the focus or to reach the window.
bool ShortcutRecorder::isStillHeld(const QKeyEvent& event) const {
    // Qt on X11 knows a repeat by the press that follows a release in its queue, and misses it when the queue ends in
    // between. Both have one time.
    const bool isRepeat = event.isAutoRepeat() || event.timestamp() == m_lastRelease;
    return isRepeat && event.nativeScanCode() == m_lastKey;
}

/// False if the key is none of ours.
bool ShortcutRecorder::pressKey(const QKeyEvent& event) {
    if (isStillHeld(event))
        return true;
    m_lastKey = isListening() ? std::optional(event.nativeScanCode()) : std::nullopt;
    if (isListening()) {
        if (!event.isAutoRepeat())
            m_recording.press(nativeKey(event), meaningOf(event));
        refresh();
        return true;
    }
    const bool isPlain = (event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier)) == Qt::NoModifier;
    if (!isPlain)
        return false;
    switch (event.key()) {
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!event.isAutoRepeat())
                start();
            return true;
        case Qt::Key_Escape:
            if (m_recording.state() != State::unheard)
                return false;
            m_recording.cancel();
            refresh();
            return true;
        default:
            return false;
    }
}

void ShortcutRecorder::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange)
        arrange();
    QWidget::changeEvent(event);
}

void ShortcutRecorder::focusInEvent(QFocusEvent* /*event*/) { update(); }

void ShortcutRecorder::focusOutEvent(QFocusEvent* /*event*/) {
    m_recording.leave();
    refresh();
}

void ShortcutRecorder::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && !isListening())
        start();
}

void ShortcutRecorder::showEvent(QShowEvent* /*event*/) {
    // What ⌘ stands for may have changed.
    refresh();
}

void ShortcutRecorder::arrange() {
    layout()->setContentsMargins(Unit::of(kCapsPadding), 0, Unit::of(kButtonPadding), 0);
    m_clear->setFixedSize(Unit::of(kButton, kButton));
    m_clear->setIconSize(Unit::of(kIcon, kIcon));
    updateGeometry();
}

void ShortcutRecorder::refresh() {
    const bool isResting = m_recording.state() == State::resting;
    m_caps->setCaps(m_recording.caps(), isResting ? KeyCapRow::Look::printed : KeyCapRow::Look::held,
                    isResting ? KeyCapRow::End::plain : KeyCapRow::End::emptySlot);
    m_clear->setVisible(isResting && m_recording.shortcut());
    updateGeometry();
    update();
    const QString hint = QString::fromStdString(m_recording.hint());
    const bool isNew = hint != m_hint;
    m_hint = hint;
    if (const QString value = words(); value != m_announcedWords || isNew) {
        m_announcedWords = value;
        QAccessibleValueChangeEvent valueChange(this, value);
        QAccessible::updateAccessibility(&valueChange);
        QAccessibleEvent description(this, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&description);
    }
    if (!isNew)
        return;
    if (!hint.isEmpty() && isVisible())
        Announcer::announce(*this, hint);
    Q_EMIT hintChanged(hint);
}

void ShortcutRecorder::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = Unit::of(kRadius);
    const bool isResting = m_recording.state() == State::resting;
    const QRectF box(rect());
    if (isResting && !hasFocus()) {
        painter.setPen(QPen(asQColor(theme.line), 1));
        painter.setBrush(asQColor(theme.surface));
        painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
    } else {
        painter.setPen(Qt::NoPen);
        painter.setBrush(asQColor(isResting ? theme.surface : theme.accentSoft));
        painter.drawRoundedRect(box, radius, radius);
        Ground::paintChosenEdge(painter, box, radius, theme);
    }
    painter.setFont(Unit::font());
    const int padding = Unit::of(kPadding);
    const QRect inside = rect().adjusted(padding, 0, -padding, 0);
    if (isResting && !m_recording.shortcut()) {
        painter.setPen(asQColor(isEnabled() ? theme.text2 : theme.line));
        painter.drawText(inside, Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine, accessibleName());
    }
    if (!isListening())
        return;
    const QString listening = tr("Listening…");
    const int room = width() - m_caps->width() - 3 * padding;
    if (painter.fontMetrics().horizontalAdvance(listening) > room)
        return;
    painter.setPen(asQColor(theme.accent));
    painter.drawText(inside, Qt::AlignVCenter | Qt::AlignTrailing | Qt::TextSingleLine, listening);
}

}  // namespace kinesta
