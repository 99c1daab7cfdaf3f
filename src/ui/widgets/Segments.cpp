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
constexpr double kPadding = 8;
/// "250 ms" keeps its order in a mirrored window.
constexpr char16_t kFirstStrongIsolate = 0x2068;

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
        painter.drawText(rect(), Qt::AlignCenter, QChar(kFirstStrongIsolate) + text());
        m_ring.paint(painter, box.adjusted(3, 3, -3, -3), radius - 3);
    }

  private:
    FocusRing m_ring;
};

}  // namespace

Segments::Segments(const QString& name, QWidget* parent) : ChoiceGroup(name, parent), m_combo(new QComboBox) {
    auto* line = new QHBoxLayout(this);
    // The group itself says how narrow it may become.
    line->setSizeConstraint(QLayout::SetNoConstraint);
    line->addWidget(m_combo);
    m_combo->setAccessibleName(name);
    m_combo->hide();
    connect(m_combo, &QComboBox::activated, this, [this](int index) {
        const int value = m_combo->itemData(index).toInt();
        setChosen(value);
        Q_EMIT chose(value);
    });
    measure();
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

void Segments::measure() {
    const bool isCombo = width() < sizeHint().width();
    const int inset = isCombo ? 0 : Unit::of(kInset);
    layout()->setContentsMargins(inset, inset, inset, inset);
    layout()->setSpacing(Unit::of(kInset));
    if (isCombo == m_combo->isVisibleTo(this))
        return;
    for (QAbstractButton* segment : buttons())
        segment->setVisible(!isCombo);
    m_combo->setVisible(isCombo);
    update();
}

QSize Segments::sizeHint() const {
    const int inset = Unit::of(kInset);
    QSize size(inset, 0);
    for (const QAbstractButton* segment : buttons())
        size = {size.width() + segment->sizeHint().width() + inset,
                std::max(size.height(), segment->sizeHint().height())};
    return {size.width(), size.height() + 2 * inset};
}

QSize Segments::minimumSizeHint() const { return {m_combo->minimumSizeHint().width(), sizeHint().height()}; }

void Segments::changeEvent(QEvent* event) {
    ChoiceGroup::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
}

void Segments::resizeEvent(QResizeEvent* event) {
    ChoiceGroup::resizeEvent(event);
    measure();
}

void Segments::addSegment(int value, const QString& word) {
    auto* segment = new Segment(word);
    layout()->addWidget(segment);
    const int index = m_combo->count();
    m_combo->addItem(word, value);
    connect(segment, &QAbstractButton::toggled, m_combo, [this, index](bool isOn) {
        if (isOn)
            m_combo->setCurrentIndex(index);
    });
    add(value, segment);
}

void Segments::paintEvent(QPaintEvent* /*event*/) {
    if (m_combo->isVisible())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(asQColor(WindowTheme::current().control));
    painter.drawRoundedRect(rect(), Unit::of(kRadius), Unit::of(kRadius));
}

}  // namespace kinesta
