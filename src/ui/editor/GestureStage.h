#pragma once

#include <QWidget>
#include <functional>

#include "ui/widgets/PadPicture.h"
#include "ui/widgets/PlayButton.h"

namespace kinesta {

/// The large pad of a rule. It performs the gesture of the rule when it changes and on demand, and shows other gestures
/// that are pointed at. Its ground is painted by the card around it.
class GestureStage final : public QWidget {
    Q_OBJECT

  public:
    /// `tapWaitingInterval` gives the tempo, in seconds.
    explicit GestureStage(std::function<double()> tapWaitingInterval);

    /// The gesture of the rule. `name` and `sentence` tell screen readers what it is.
    void setGesture(const PadGesture& gesture, const QString& name, const QString& sentence);
    /// Performs another gesture; its still picture where motion is not welcome.
    void preview(const PadGesture& gesture);
    /// The gesture of the rule again, still.
    void endPreview();
    void setPadWidth(double width);

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void show(const PadGesture& gesture);
    void measure();
    void placeControl();

    std::function<double()> m_tapWaitingInterval;
    PadGesture m_gesture;
    bool m_isPreview = false;
    double m_padWidth = 0;
    PadPicture* m_pad;
    PlayButton* m_play;
};

}  // namespace kinesta
