#include "ui/trying/TestSheet.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <algorithm>

#include "app/Desktop.h"
#include "platform/qt/ThemePalette.h"
#include "ui/trying/DetectionColumn.h"
#include "ui/trying/LivePad.h"
#include "ui/trying/PadKey.h"
#include "ui/widgets/Notice.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kWidth = 800;
constexpr double kPadWidth = 452;
constexpr double kPadding = 24;
constexpr double kTop = 20;
/// The notice in the band has a smaller inset of its own.
constexpr double kBandSide = 8;
/// Below, the pad stands above the words.
constexpr double kNarrow = 640;
/// Left free around the sheet on a small screen.
constexpr double kAround = 24;

}  // namespace

TestSheet::TestSheet(const WindowParts& parts, QWidget* parent)
    : QDialog(parent),
      m_session(parts.testSession),
      m_service(parts.service),
      m_trackpad(parts.desktop.trackpad()),
      m_model({.store = parts.store,
               .defaults = parts.desktop.defaults(),
               .service = parts.service,
               .session = parts.testSession}),
      m_scroll(new QScrollArea),
      m_body(new QWidget),
      m_page(new QVBoxLayout(m_body)),
      m_columns(new QBoxLayout(QBoxLayout::LeftToRight)),
      m_pad(new LivePad(parts.desktop.clock(), Unit::of(kPadWidth))),
      m_key(new PadKey),
      m_detection(new DetectionColumn),
      m_band(makeBand()) {
    setWindowTitle(tr("Try a gesture"));
    setWindowModality(Qt::WindowModal);
    m_pad->setAccessibleName(tr("Trackpad"));
    m_pad->setAccessibleDescription(tr("The fingers on the trackpad as they move."));

    auto* left = new QVBoxLayout;
    left->setSpacing(0);
    left->addWidget(m_pad);
    left->addWidget(m_key);
    left->addStretch(1);
    QSizePolicy kept = m_key->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    m_key->setSizePolicy(kept);
    m_columns->addLayout(left);
    m_columns->addWidget(m_detection, 1);
    m_page->addWidget(new Words(tr("Try a gesture and check what Kinesta detects."), Words::Size::heading));
    m_page->addLayout(m_columns, 1);
    m_scroll->setWidget(m_body);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->viewport()->setAutoFillBackground(false);
    m_body->setAutoFillBackground(false);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(m_scroll, 1);
    all->addWidget(m_band);

    m_observers.push_back(m_service.cornerPalmRejection().observe([this](const auto&) { followTrackpad(); }));
    m_observers.push_back(m_service.status().observe([this](const auto&) { followTrackpad(); }));
    m_observers.push_back(m_model.content().observe([this](const TestSheetContent& content) { setContent(content); }));
    // The session must not outlive the event loop: at the end of the program it goes before this.
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] { end(); });
    if (parent != nullptr)
        parent->window()->installEventFilter(this);
    followTrackpad();
    m_detection->setContent(m_model.content().value());
    measure();
}

TestSheet::~TestSheet() { end(); }

QWidget* TestSheet::makeBand() {
    auto* notice = new Notice(Notice::Kind::plain, tr("Actions are paused while this window is open."),
                              tr("Keyboard shortcuts, clicks, links, applications, volume changes, and commands will "
                                 "not run."));
    auto* done = new QPushButton(tr("Done"));
    done->setProperty("primary", true);
    done->setDefault(true);
    connect(done, &QPushButton::clicked, this, &QDialog::accept);
    notice->setControl(done);
    auto* band = new QWidget;
    auto* line = new QHBoxLayout(band);
    line->addWidget(notice);
    return band;
}

void TestSheet::begin() {
    if (m_isTrying)
        return;
    m_isTrying = true;
    m_session.begin();
    m_trackpad.watch([this](const PadEvent& event) { m_pad->take(event); });
}

void TestSheet::end() {
    if (!m_isTrying)
        return;
    m_isTrying = false;
    m_trackpad.watch({});
    m_session.end();
}

void TestSheet::gestureRecognized(const DetectedGesture& gesture) {
    if (!m_isTrying)
        return;
    m_model.gestureRecognized(gesture);
    m_pad->showGesture(gesture, QString::fromStdString(m_model.content().value().result));
}

void TestSheet::followTrackpad() {
    const CornerPalmRejectionSettings& palms = m_service.cornerPalmRejection().value();
    const bool isReading = m_service.status().value() == TrackpadContactProviderStatus::listening();
    m_pad->setReading(isReading);
    m_key->setVisible(isReading);
    m_pad->setPalmRejection(palms);
    m_pad->setProportions(m_trackpad.identity().proportions);
    m_key->setPalmsShown(palms.isEnabled);
    fitHeight();
}

void TestSheet::setContent(const TestSheetContent& content) {
    m_detection->setContent(content);
    fitHeight();
}

void TestSheet::measure() {
    const QSize available = screen()->availableSize();
    const int padding = Unit::of(kPadding);
    const int width = std::min(Unit::of(kWidth), available.width() - 2 * Unit::of(kAround));
    const bool isNarrow = width < Unit::of(kNarrow);
    // Above the words the pad leaves them room.
    const int most = isNarrow ? available.height() / 2 : width;
    const int padWidth = std::min({Unit::of(kPadWidth), width - 2 * padding, most});
    m_pad->setPadWidth(padWidth);
    m_key->setRoom(padWidth);
    m_columns->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_columns->setSpacing(padding);
    m_page->setContentsMargins(padding, Unit::of(kTop), padding, Unit::of(18));
    m_page->setSpacing(Unit::of(6));
    m_band->layout()->setContentsMargins(Unit::of(kBandSide), 0, Unit::of(kBandSide), 0);
    m_detection->measure();
    setFixedWidth(width);
    fitHeight();
}

/// Grows with its words, and never shrinks under the eyes.
void TestSheet::fitHeight() {
    const int wanted = m_page->totalHeightForWidth(width()) + m_band->layout()->totalHeightForWidth(width());
    const int most = screen()->availableSize().height() - 2 * Unit::of(kAround);
    const int least = isVisible() ? height() : 0;
    setFixedHeight(std::min(std::max(wanted, least), most));
}

void TestSheet::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous())
        begin();
}

void TestSheet::hideEvent(QHideEvent* event) {
    if (!event->spontaneous())
        end();
    QDialog::hideEvent(event);
}

void TestSheet::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

bool TestSheet::eventFilter(QObject* watched, QEvent* event) {
    // A window of its own stays when the one behind it is hidden, so it closes by itself.
    if (event->type() == QEvent::Hide && !event->spontaneous() && isVisible())
        reject();
    return QDialog::eventFilter(watched, event);
}

void TestSheet::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const AppTheme& theme = WindowTheme::current();
    painter.fillRect(rect(), asQColor(theme.surface));
    painter.fillRect(m_band->geometry(), asQColor(theme.accentSoft));
}

}  // namespace kinesta
