#pragma once

#include <QAbstractButton>
#include <QVariantAnimation>

#include "app/AppTheme.h"
#include "ui/widgets/FocusRing.h"

namespace kinesta {

/// On or off. To screen readers it is a check box.
class Switch final : public QAbstractButton {
    Q_OBJECT

  public:
    /// The name says what is switched; no label of the widget shows it.
    explicit Switch(const QString& name, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    struct Look {
        /// 0 off, 1 on, between them on the way.
        double position = 0;
        bool isEnabled = true;
        Qt::LayoutDirection direction = Qt::LeftToRight;
    };
    /// A switch of any size, for lists that paint theirs.
    static void paint(QPainter& painter, const QRectF& box, const Look& look, const AppTheme& theme);

  protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void checkStateSet() override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void move();

    FocusRing m_ring;
    QVariantAnimation m_motion;
    double m_position = 0;
};

}  // namespace kinesta
