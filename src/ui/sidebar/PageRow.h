#pragma once

#include <QAbstractButton>

#include "ui/pictures/WindowSymbol.h"
#include "ui/widgets/FocusRing.h"

namespace kinesta {

/// The row of a page that is no rule.
class PageRow final : public QAbstractButton {
    Q_OBJECT

  public:
    PageRow(WindowSymbol symbol, const QString& name, QWidget* parent = nullptr);

    /// Whether the window shows the page.
    void setShown(bool isShown);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    WindowSymbol m_symbol;
    bool m_isShown = false;
    FocusRing m_ring;
};

}  // namespace kinesta
