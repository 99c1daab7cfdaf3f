#pragma once

#include <QWidget>

namespace kinesta {

/// The number of a step in a circle; a tick once it is done.
class StepNumber final : public QWidget {
    Q_OBJECT

  public:
    enum class State { later, now, done };

    explicit StepNumber(int number, QWidget* parent = nullptr);

    void setState(State state);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int m_number;
    State m_state = State::later;
};

}  // namespace kinesta
