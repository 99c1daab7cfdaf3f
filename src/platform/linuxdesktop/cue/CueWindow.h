#pragma once

#include <QImage>
#include <QWidget>

#include "feedback/ActionCueContent.h"

namespace kinesta {

/// The window of the cue: as CuePainter draws it. It takes neither
/// focus nor clicks.
class CueWindow final : public QWidget {
    Q_OBJECT

  public:
    CueWindow();

    void setContent(const ActionCueContent& content);
    /// 0…1; 1 is solid.
    void setGroundOpacity(double opacity);
    /// Without a compositor the window is solid and cut to its shape.
    void setCompositor(bool isThere);

    /// 0…1 of the whole window. Without a compositor it always looks like 1.
    void setAlpha(double alpha);
    double alpha() const { return m_alpha; }

  protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void redraw();
    void cut();

    ActionCueContent m_content;
    double m_groundOpacity = 1;
    double m_alpha = 1;
    bool m_hasCompositor = true;
    /// All but alpha, so that a step of a fade paints one image. Null until it is needed.
    QImage m_drawn;
};

}  // namespace kinesta
