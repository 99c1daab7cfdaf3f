#include <QAbstractScrollArea>
#include <QComboBox>
#include <QDialogButtonBox>
#include <algorithm>

#include "ui/style/ButtonLook.h"
#include "ui/style/FieldLook.h"
#include "ui/style/KinestaStyle.h"
#include "ui/style/MenuLook.h"
#include "ui/style/Shapes.h"
#include "ui/style/StockWidgets.h"
#include "ui/widgets/SymbolIcon.h"
#include "ui/widgets/Unit.h"

// Sizes, places and habits of the controls; KinestaStyle.cpp paints them.
namespace kinesta {
namespace {

/// Keeps the square corners of what scrolls inside the round edge.
constexpr double kScrollFrame = 3;
constexpr double kDialogPadding = 24;
constexpr double kSpacing = 8;
constexpr double kIconMargin = 6;
constexpr double kTipPadding = 6;
constexpr double kIndicator = 18;
constexpr double kScrollExtent = 10;

}  // namespace

QRect KinestaStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                   const QWidget* widget) const {
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (control == CC_Slider && slider != nullptr)
        return FieldLook::sliderPart(*slider, part);
    if (control == CC_ScrollBar && slider != nullptr)
        return FieldLook::scrollBarPart(*slider, part);
    if (control == CC_ComboBox && combo != nullptr)
        return ButtonLook::comboPart(*combo, part);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QRect KinestaStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
    if (element == SE_LineEditContents) {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        // Line edits keep two pixels more by themselves.
        const int side = frame != nullptr && frame->lineWidth > 0 ? FieldLook::padding() - 2 : 0;
        return option->rect.adjusted(side, 0, -side, 0);
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

QSize KinestaStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                     const QWidget* widget) const {
    switch (type) {
        case CT_PushButton:
            if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
                return ButtonLook::pushButtonSize(*button, widget);
            break;
        case CT_ToolButton:
            if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option))
                return ButtonLook::toolButtonSize(*button, size);
            break;
        case CT_ComboBox:
            if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option))
                return ButtonLook::comboSize(*combo, size, widget);
            break;
        case CT_LineEdit: {
            const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            if (frame == nullptr || frame->lineWidth == 0)
                break;
            return {size.width() + 2 * FieldLook::padding(),
                    std::max(Unit::of(Shapes::kControlHeight), size.height() + Unit::of(kSpacing))};
        }
        case CT_MenuItem:
            if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
                return MenuLook::itemSize(*item, size, widget);
            break;
        default:
            break;
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

int KinestaStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
        case PM_ButtonIconSize:
        case PM_SmallIconSize:
        case PM_ListViewIconSize:
        case PM_LineEditIconSize:
        case PM_ToolBarIconSize:
            return Unit::of(Shapes::kSymbol);
        case PM_LineEditIconMargin:
            return Unit::of(kIconMargin);
        case PM_ButtonDefaultIndicator:
        case PM_ButtonShiftHorizontal:
        case PM_ButtonShiftVertical:
        case PM_MenuPanelWidth:
            return 0;
        case PM_MenuHMargin:
        case PM_MenuVMargin:
            // The list of a combo has them as its frame.
            return StockWidgets::isComboList(widget) || qobject_cast<const QComboBox*>(widget) != nullptr
                       ? 0
                       : MenuLook::margin();
        case PM_SubMenuOverlap:
            return MenuLook::margin();  // beside the edge of the menu, whose entries end before it
        case PM_DefaultFrameWidth:
            if (StockWidgets::isComboList(widget))
                return MenuLook::margin();
            return StockWidgets::isField(widget) ? Unit::of(kScrollFrame) : 1;
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_SliderLength:
            return Unit::of(kIndicator);
        case PM_SliderThickness:
        case PM_SliderControlThickness:
            return Unit::of(kIndicator) + 2 * FocusRing::room();
        case PM_SliderSpaceAvailable:
            if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
                const int length = slider->orientation == Qt::Horizontal ? slider->rect.width() : slider->rect.height();
                return length - Unit::of(kIndicator) - 2 * FocusRing::room();
            }
            break;
        case PM_CheckBoxLabelSpacing:
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutVerticalSpacing:
            return Unit::of(kSpacing);
        case PM_ScrollBarExtent:
            return Unit::of(kScrollExtent);
        case PM_ScrollView_ScrollBarOverlap:
        case PM_ScrollView_ScrollBarSpacing:
            return 0;
        case PM_SplitterWidth:
            return 1;  // with so thin a handle Qt takes hold of five pixels
        case PM_ToolTipLabelFrameWidth:
            return Unit::of(kTipPadding);
        case PM_FocusFrameHMargin:
        case PM_FocusFrameVMargin:
            return FocusRing::room();
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin:
            if (widget != nullptr && widget->isWindow())
                return Unit::of(kDialogPadding);
            break;
        default:
            break;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int KinestaStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* result) const {
    switch (hint) {
        case SH_DialogButtonBox_ButtonsHaveIcons:
        case SH_EtchDisabledText:
        case SH_Menu_AllowActiveAndDisabled:
        case SH_Widget_Animation_Duration:
            return 0;
        case SH_DialogButtonLayout:
            return QDialogButtonBox::GnomeLayout;
        case SH_UnderlineShortcut:
            return m_showsMnemonics ? 1 : 0;
        case SH_FocusFrame_AboveWidget:
        case SH_ComboBox_ListMouseTracking:
            return 1;
        case SH_Slider_AbsoluteSetButtons:
            return Qt::LeftButton;
        case SH_ToolTipLabel_Opacity:
            return 255;
        case SH_ComboBox_PopupFrameStyle:
            return QFrame::StyledPanel | QFrame::Plain;
        case SH_Menu_Mask:
        case SH_ToolTip_Mask: {
            auto* mask = qstyleoption_cast<QStyleHintReturnMask*>(result);
            if (mask == nullptr || StockWidgets::isBlended(widget))
                return 0;
            mask->region = hint == SH_Menu_Mask ? MenuLook::panelShape(option->rect) : MenuLook::tipShape(option->rect);
            return 1;
        }
        default:
            break;
    }
    return QProxyStyle::styleHint(hint, option, widget, result);
}

QIcon KinestaStyle::standardIcon(StandardPixmap name, const QStyleOption* option, const QWidget* widget) const {
    if (name == SP_LineEditClearButton)
        return SymbolIcon::of(windowSymbol(WindowSymbol::clear));
    return QProxyStyle::standardIcon(name, option, widget);
}

}  // namespace kinesta
