#include "ui/style/KinestaStyle.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QToolButton>
#include <optional>
#include <utility>

#include "platform/qt/ThemePalette.h"
#include "ui/style/ButtonLook.h"
#include "ui/style/FieldLook.h"
#include "ui/style/MenuLook.h"
#include "ui/style/Shapes.h"
#include "ui/style/StockWidgets.h"
#include "ui/widgets/Unit.h"
#include "ui/widgets/WindowTheme.h"

namespace kinesta {
namespace {

constexpr double kQuestionWidth = 300;
constexpr double kRowRadius = 6;

/// Painters come back as they were lent.
class Lent {
  public:
    explicit Lent(QPainter* painter) : m_painter(painter) { m_painter->save(); }
    ~Lent() { m_painter->restore(); }
    Lent(const Lent&) = delete;
    Lent& operator=(const Lent&) = delete;

  private:
    QPainter* m_painter;
};

/// Controls with a ring around them; fields always show their focus, and sliders paint the ring around their handle.
bool hasOuterRing(const QWidget* widget) {
    const auto* combo = qobject_cast<const QComboBox*>(widget);
    return qobject_cast<const QPushButton*>(widget) != nullptr || qobject_cast<const QToolButton*>(widget) != nullptr ||
           qobject_cast<const QCheckBox*>(widget) != nullptr || (combo != nullptr && !combo->isEditable());
}

bool isFollowed(const QWidget* widget) {
    return hasOuterRing(widget) || qobject_cast<const QSlider*>(widget) != nullptr;
}

}  // namespace

KinestaStyle::KinestaStyle(std::function<bool()> blends)
    : QProxyStyle(QStringLiteral("fusion")), m_blends(std::move(blends)) {}

void KinestaStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (qobject_cast<QScrollBar*>(widget) != nullptr)
        widget->setAttribute(Qt::WA_OpaquePaintEvent, false);
    if ((qobject_cast<QMenu*>(widget) != nullptr || StockWidgets::isComboList(widget) || StockWidgets::isTip(widget)) &&
        m_blends())
        widget->setAttribute(Qt::WA_TranslucentBackground);
    if (widget->objectName() == QLatin1String("qt_msgbox_label"))
        widget->setFont(Unit::font(1, QFont::DemiBold));
    // Its words wrap. The question above them does so only if no width is set.
    if (widget->objectName() == QLatin1String("qt_msgbox_informativelabel"))
        widget->setMinimumWidth(Unit::of(kQuestionWidth));
    if (isFollowed(widget) || widget->isWindow() || qobject_cast<QLineEdit*>(widget) != nullptr)
        widget->installEventFilter(this);
}

void KinestaStyle::unpolish(QWidget* widget) {
    widget->removeEventFilter(this);
    QProxyStyle::unpolish(widget);
}

bool KinestaStyle::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr)
        return false;
    switch (event->type()) {
        case QEvent::FocusIn:
        case QEvent::FocusOut:
            if (isFollowed(widget))
                followFocus(widget, *static_cast<QFocusEvent*>(event));
            break;
        case QEvent::Resize:
            if (qobject_cast<QPushButton*>(widget) != nullptr || qobject_cast<QComboBox*>(widget) != nullptr)
                followWidth(*widget);
            break;
        case QEvent::DynamicPropertyChange:
            widget->updateGeometry();
            widget->update();
            break;
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            if (widget->isWindow() && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt)
                showMnemonics(widget, event->type() == QEvent::KeyPress);
            break;
        case QEvent::WindowDeactivate:
            showMnemonics(widget, false);
            break;
        default:
            break;
    }
    return false;
}

/// The words of a control that is narrower than it wants to be wrap.
void KinestaStyle::followWidth(QWidget& control) {
    const bool isNarrow = control.width() < control.sizeHint().width();
    const bool wasNarrow = control.property(ButtonLook::kIsNarrow).toBool();
    if (!isNarrow && !wasNarrow)
        return;
    control.setProperty(ButtonLook::kIsNarrow, isNarrow);
    // Controls remember their size hint until something of this kind happens.
    QEvent change(QEvent::StyleChange);
    QCoreApplication::sendEvent(&control, &change);
}

void KinestaStyle::followFocus(QWidget* widget, const QFocusEvent& event) {
    m_ring.follow(event);
    const bool isShown = m_ring.isShown() && event.gotFocus();
    if (isShown && hasOuterRing(widget)) {
        if (m_frame == nullptr)
            m_frame = new QFocusFrame;
        m_frame->setWidget(widget);
        // It stays hidden around what is out of sight, even when that is scrolled into view right afterwards.
        m_frame->show();
    } else if (m_frame != nullptr && event.reason() != Qt::PopupFocusReason) {
        m_frame->setWidget(nullptr);
    }
    widget->update();
}

void KinestaStyle::showMnemonics(QWidget* window, bool areShown) {
    if (std::exchange(m_showsMnemonics, areShown) == areShown)
        return;
    const auto widgets = window->findChildren<QWidget*>();
    for (QWidget* widget : widgets)
        widget->update();
}

void KinestaStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    const Lent lent(painter);
    const AppTheme& theme = WindowTheme::current();
    switch (element) {
        case PE_PanelButtonCommand:
            if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
                return ButtonLook::paintPushButton(*painter, *button, widget);
            break;
        case PE_IndicatorCheckBox:
        case PE_IndicatorItemViewItemCheck:
            return ButtonLook::paintCheckMark(*painter, *option);
        case PE_PanelLineEdit:
            if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option); frame && frame->lineWidth > 0)
                FieldLook::paintField(*painter, *option, Shapes::has(widget, "error"));
            return;
        case PE_Frame:
            if (StockWidgets::isComboList(widget))
                return MenuLook::paintPanel(*painter, option->rect);
            if (!StockWidgets::isField(widget))
                break;
            return FieldLook::paintField(*painter, *option, Shapes::has(widget, "error"));
        case PE_FrameLineEdit:
        case PE_FrameMenu:
            return;  // painted with the panel
        case PE_FrameFocusRect:
            if (qobject_cast<const QAbstractItemView*>(widget) != nullptr &&
                option->state.testFlag(State_KeyboardFocusChange))
                Shapes::edge(*painter, option->rect, Unit::of(kRowRadius), asQColor(theme.accent), theme.focusRing);
            return;
        case PE_PanelMenu:
            return MenuLook::paintPanel(*painter, option->rect);
        case PE_PanelTipLabel:
            return MenuLook::paintTip(*painter, option->rect);
        default:
            break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void KinestaStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    const Lent lent(painter);
    switch (element) {
        case CE_PushButton:
            drawControl(CE_PushButtonBevel, option, painter, widget);
            return drawControl(CE_PushButtonLabel, option, painter, widget);
        case CE_PushButtonBevel:
            return drawPrimitive(PE_PanelButtonCommand, option, painter, widget);
        case CE_PushButtonLabel:
            if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
                return ButtonLook::paintPushButtonLabel(*painter, *button, widget, m_showsMnemonics);
            break;
        case CE_ComboBoxLabel:
            if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option))
                return ButtonLook::paintComboLabel(*painter, *combo, widget);
            break;
        case CE_MenuItem:
            if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
                return MenuLook::paintItem(*painter, *item, widget, m_showsMnemonics);
            break;
        case CE_MenuScroller:
            if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
                return MenuLook::paintScroller(*painter, *item);
            break;
        case CE_MenuEmptyArea:
            // The panel of a menu is there already; the list of a combo erases what it has shown before.
            if (qobject_cast<const QMenu*>(widget) == nullptr)
                painter->fillRect(option->rect, asQColor(WindowTheme::current().surface));
            return;
        case CE_ProgressBar:
            if (const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option))
                return FieldLook::paintProgress(*painter, *bar);
            break;
        case CE_Splitter:
            return painter->fillRect(option->rect, asQColor(WindowTheme::current().border));
        case CE_FocusFrame:
            if (const auto* frame = qobject_cast<const QFocusFrame*>(widget); frame && frame->widget())
                m_ring.paint(*painter, option->rect, ButtonLook::radius(*frame->widget()) + FocusRing::room());
            return;
        default:
            break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void KinestaStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                      const QWidget* widget) const {
    const Lent lent(painter);
    switch (control) {
        case CC_ComboBox:
            if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option))
                return ButtonLook::paintCombo(*painter, *combo);
            break;
        case CC_ToolButton:
            if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option))
                return ButtonLook::paintToolButton(*painter, *button, widget, m_showsMnemonics);
            break;
        case CC_Slider:
            if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option))
                return FieldLook::paintSlider(*painter, *slider,
                                              m_ring.isShown() && option->state.testFlag(State_HasFocus));
            break;
        case CC_ScrollBar:
            if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
                return FieldLook::paintScrollBar(*painter, *bar);
            break;
        default:
            break;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

}  // namespace kinesta
