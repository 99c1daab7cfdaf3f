#include "ui/overview/HeroStage.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

#include "platform/qt/ThemePalette.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

using State = OverviewContent::State;

constexpr double kCardRadius = 12;
constexpr double kHeight = 206;
constexpr double kBadge = 24;

struct Measure {
    double width;
    double pad;
};

Measure measureOf(HeroStage::Size size) {
    return size == HeroStage::Size::besideSmall ? Measure{208, 160} : Measure{264, 200};
}

/// A pad with nothing on it.
constexpr PadGesture kRest{.kind = GestureKind::singleTap, .fingers = 0};

}  // namespace

HeroStage::HeroStage(QWidget* parent)
    : QWidget(parent),
      m_pad(new PadPicture(measureOf(Size::beside).pad, this)),
      m_badge(new SymbolMark(kBadge, this)),
      m_play(new PlayButton(this)) {
    m_pad->setAccessibleName(tr("Trackpad"));
    m_badge->setSymbol(WindowSymbol::caution, &AppTheme::caution, tr("Cannot be read"));
    m_badge->setDisc(&AppTheme::cautionSoft);
    connect(m_play, &PlayButton::clicked, this, &HeroStage::playPressed);
    measure();
}

void HeroStage::show(const OverviewContent& content) {
    const bool isOff = content.state == State::off || content.state == State::stopped;
    const bool isWelcome = content.state == State::firstLaunch;
    const bool isUnreadable = content.state == State::unavailable;
    m_pad->setStruckThrough(isOff);
    if (content.lastGesture)
        m_pad->setGesture(PadGesture::of(content.lastGesture->gesture));
    else if (isWelcome)
        m_pad->setGesture(PadGesture::of(GestureRule::recommendedDefault()));
    else
        m_pad->setGesture(isUnreadable ? PadGesture{} : kRest);
    m_pad->setAccessibleDescription(
        QString::fromStdString(content.lastGesture ? content.lastGesture->text : content.headline));
    m_badge->setVisible(isUnreadable);
    m_play->setVisible(isWelcome && !content.lastGesture && !WindowTheme::reducesMotion());
    update();
}

void HeroStage::perform(double tapWaitingInterval) { m_pad->perform(tapWaitingInterval); }

void HeroStage::setSize(Size size) {
    if (std::exchange(m_size, size) == size)
        return;
    measure();
}

void HeroStage::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

void HeroStage::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    place();
}

void HeroStage::measure() {
    const Measure measure = measureOf(m_size);
    m_pad->setPadWidth(measure.pad);
    setMinimumHeight(Unit::of(kHeight));
    if (m_size == Size::above) {
        setMinimumWidth(0);
        setMaximumWidth(QWIDGETSIZE_MAX);
    } else {
        setFixedWidth(Unit::of(measure.width));
    }
    place();
}

void HeroStage::place() {
    const QSize pad = m_pad->sizeHint();
    m_pad->setGeometry(QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, pad, rect()));
    const QSize badge = m_badge->sizeHint();
    const QPoint corner = m_pad->geometry().bottomRight();
    m_badge->setGeometry({corner - QPoint(badge.width() / 2, badge.height() / 2), badge});
    const QSize play = m_play->sizeHint();
    const int x = layoutDirection() == Qt::RightToLeft ? Unit::of(5) : width() - Unit::of(5) - play.width();
    m_play->setGeometry({{x, height() - Unit::of(4) - play.height()}, play});
    update();
}

void HeroStage::paintEvent(QPaintEvent* /*event*/) {
    const AppTheme& theme = WindowTheme::current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // The corners that the card rounds: the upper one at the beginning of the line, or both.
    const double radius = Unit::of(kCardRadius) - 1;
    QPainterPath ground;
    ground.addRect(rect());
    QPainterPath outside;
    const auto round = [&](bool isLeft) {
        QPainterPath square;
        square.addRect(isLeft ? 0 : width() - radius, 0, radius, radius);
        QPainterPath disc;
        disc.addEllipse(QPointF(isLeft ? radius : width() - radius, radius), radius, radius);
        outside += square - disc;
    };
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    if (m_size == Size::above || !isMirrored)
        round(true);
    if (m_size == Size::above || isMirrored)
        round(false);
    painter.fillPath(ground - outside, asQColor(theme.accentSoft));
}

}  // namespace kinesta
