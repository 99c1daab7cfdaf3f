#pragma once

#include <QAbstractButton>

#include "ui/widgets/FocusRing.h"

namespace kinesta {

/// The small round button on a stage that performs its gesture again.
class PlayButton final : public QAbstractButton {
    Q_OBJECT

  public:
    explicit PlayButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    FocusRing m_ring;
};

}  // namespace kinesta
