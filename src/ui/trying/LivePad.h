#pragma once

#include <QElapsedTimer>
#include <QPixmap>
#include <QTimer>
#include <QWidget>
#include <optional>
#include <vector>

#include "app/AppTheme.h"
#include "support/Clock.h"
#include "ui/models/LivePadModel.h"

namespace kinesta {

/// The pad as it is touched now. Repaints only what changed, at most once a refresh of the screen, and rests while the
/// pad does. To screen readers it is an image. Never mirrored.
class LivePad final : public QWidget {
    Q_OBJECT

  public:
    /// `width` of the pad in pixels. `clock` must outlive this.
    LivePad(const Clock& clock, int width);

    void setPadWidth(int width);
    /// Width to height of the real pad; 0 if that is not known.
    void setProportions(double proportions);
    void setPalmRejection(const CornerPalmRejectionSettings& settings);
    /// A pad that is not read is struck through.
    void setReading(bool isReading);
    void take(const PadEvent& event);
    void showGesture(const DetectedGesture& gesture, const QString& text);

    /// How often its picture was brought up to date.
    int refreshCount() const { return m_refreshCount; }
    bool isResting() const { return !m_timer.isActive(); }
    const std::vector<LiveTouch>& shownTouches() const { return m_touches; }

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void refresh();
    void refreshSoon();
    void startTimer(double milliseconds);
    double refreshInterval() const;
    void updateWhatDiffers(const std::vector<LiveTouch>& touches, const std::optional<LiveGesture>& gesture);
    void changeGround();
    /// The pad without its lower edge.
    QRectF pad() const;

    static constexpr double kUsualProportions = 4.0 / 3;

    const Clock& m_clock;
    int m_width;
    double m_proportions = kUsualProportions;
    bool m_isReading = true;
    CornerPalmRejectionSettings m_palms;
    LivePadModel m_model;
    std::vector<LiveTouch> m_touches;
    std::optional<LiveGesture> m_gesture;
    /// The pad without fingers, as long as it looks the same.
    QPixmap m_ground;
    AppTheme m_groundTheme;
    QTimer m_timer;
    /// What came while nobody saw it is not shown yet.
    bool m_isBehind = false;
    QElapsedTimer m_sinceRefresh;
    int m_refreshCount = 0;
};

}  // namespace kinesta
