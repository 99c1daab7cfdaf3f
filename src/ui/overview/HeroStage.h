#pragma once

#include <QWidget>

#include "ui/models/OverviewModel.h"
#include "ui/overview/SymbolMark.h"
#include "ui/widgets/PadPicture.h"
#include "ui/widgets/PlayButton.h"

namespace kinesta {

/// The pad on its soft ground: at rest, with the last gesture, struck through while gestures are off, dashed while it
/// cannot be read.
class HeroStage final : public QWidget {
    Q_OBJECT

  public:
    enum class Size { beside, besideSmall, above };

    explicit HeroStage(QWidget* parent = nullptr);

    void show(const OverviewContent& content);
    /// Performs the gesture that the welcome is about.
    void perform(double tapWaitingInterval);
    void setSize(Size size);

  Q_SIGNALS:
    void playPressed();

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void measure();
    void place();

    PadPicture* m_pad;
    SymbolMark* m_badge;
    PlayButton* m_play;
    Size m_size = Size::beside;
};

}  // namespace kinesta
