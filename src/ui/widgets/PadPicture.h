#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>

#include "ui/pictures/GesturePerformance.h"

namespace kinesta {

/// A pad with a gesture on it, still or performed. To screen readers it is an image.
class PadPicture final : public QWidget {
    Q_OBJECT

  public:
    /// `width` of the pad in units.
    explicit PadPicture(double width, QWidget* parent = nullptr);

    /// Shows the gesture; a performance of another one ends.
    void setGesture(const PadGesture& gesture);
    /// A pad that is off: struck through.
    void setStruckThrough(bool isStruckThrough);
    void setPadWidth(double width);
    /// Performs the gesture in the tempo of this waiting interval, in seconds. Nothing moves while the widget is
    /// hidden.
    void perform(double tapWaitingInterval);
    /// The still picture again.
    void rest();
    bool isPerforming() const { return m_performance.has_value(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    double padWidth() const;

    double m_width;
    PadGesture m_gesture;
    bool m_isStruckThrough = false;
    std::optional<GesturePerformance> m_performance;
    QElapsedTimer m_since;
    QTimer m_frames;
};

}  // namespace kinesta
