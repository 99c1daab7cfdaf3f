#pragma once

#include <QFocusFrame>
#include <QPointer>
#include <QProxyStyle>
#include <functional>

#include "ui/widgets/FocusRing.h"

namespace kinesta {

/// Stock controls in the shapes and colours of our windows, for desktops without a style of their own. Dynamic
/// properties of a widget choose among looks: "primary", "destructive" and "link" of a button, "error" of a field.
class KinestaStyle final : public QProxyStyle {
    Q_OBJECT

  public:
    /// `blends` says whether translucent windows show what lies behind them; without that menus are cut to their shape.
    explicit KinestaStyle(std::function<bool()> blends);

    void polish(QWidget* widget) override;
    void unpolish(QWidget* widget) override;
    using QProxyStyle::polish;
    using QProxyStyle::unpolish;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget = nullptr) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* result = nullptr) const override;
    QIcon standardIcon(StandardPixmap name, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    static void followWidth(QWidget& control);
    void followFocus(QWidget* widget, const QFocusEvent& event);
    void showMnemonics(QWidget* window, bool areShown);

    std::function<bool()> m_blends;
    FocusRing m_ring;
    /// Around the focused control; it lies over the window, so the ring may stand out of the control.
    QPointer<QFocusFrame> m_frame;
    bool m_showsMnemonics = false;
};

}  // namespace kinesta
