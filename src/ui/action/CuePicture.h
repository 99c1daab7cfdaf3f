#pragma once

#include <QWidget>

#include "feedback/ActionCueContent.h"

namespace kinesta {

/// The cue as it will come, a fifth smaller.
class CuePicture final : public QWidget {
    Q_OBJECT

  public:
    using QWidget::QWidget;

    void setContent(const ActionCueContent& content, double groundOpacity);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    ActionCueContent m_content;
    double m_groundOpacity = 1;
};

}  // namespace kinesta
