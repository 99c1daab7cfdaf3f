#include "ui/widgets/Segments.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>

#include "platform/qt/ThemePalette.h"
#include "ui/widgets/FocusRing.h"
#include "ui/widgets/Ground.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kRadius = 8;
constexpr double kInset = 2;
constexpr double kHeight = 28;
constexpr double kPadding = 10;

class Segment final : public QAbstractButton {
  public:
    explicit Segment(const QString& word) {
        setText(word);
        setAttribute(Qt::WA_Hover);
    }

    QSize sizeHint() const override {
        // As wide as the bold word, so that choosing moves nothing.
        const QFontMetrics metrics(Unit::font(1, QFont::DemiBold));
        return {metrics.horizontalAdvance(text()) + 2 * Unit::of(kPadding),
                std::max(Unit::of(kHeight), metrics.height())};
    }

    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
            m_ring.follow(*static_cast<QFocusEvent*>(event));
            update();
        }
        return QAbstractButton::event(event);
    }

    void paintEvent(QPaintEvent* /*event*/) override {
        const AppTheme& theme = WindowTheme::current();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const double radius = Unit::of(kRadius - kInset);
        const QRectF box = rect();
        painter.setPen(Qt::NoPen);
        if (isChecked()) {
            painter.setBrush(asQColor(theme.surface));
            painter.drawRoundedRect(box, radius, radius);
            if (isEnabled())
                Ground::paintChosenEdge(painter, box, radius, theme);
        } else if (isDown() || (underMouse() && isEnabled())) {
            painter.setBrush(Ground::controlColour({false, isDown(), true}, theme));
            painter.drawRoundedRect(box, radius, radius);
        }
        painter.setFont(Unit::font(1, isChecked() ? QFont::DemiBold : QFont::Medium));
        const Rgb words = !isEnabled() ? theme.line : isChecked() ? theme.accent : theme.text;
        painter.setPen(asQColor(words));
        painter.drawText(rect(), Qt::AlignCenter, text());
        m_ring.paint(painter, box.adjusted(3, 3, -3, -3), radius - 3);
    }

  private:
    FocusRing m_ring;
};

}  // namespace

Segments::Segments(const QString& name, QWidget* parent) : ChoiceGroup(name, parent) {
    new QHBoxLayout(this);
    measure();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Segments::measure() {
    const int inset = Unit::of(kInset);
    layout()->setContentsMargins(inset, inset, inset, inset);
    layout()->setSpacing(inset);
}

void Segments::changeEvent(QEvent* event) {
    ChoiceGroup::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

void Segments::addSegment(int value, const QString& word) {
    auto* segment = new Segment(word);
    layout()->addWidget(segment);
    add(value, segment);
}

void Segments::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(asQColor(WindowTheme::current().control));
    painter.drawRoundedRect(rect(), Unit::of(kRadius), Unit::of(kRadius));
}

}  // namespace kinesta
