#pragma once

#include <QWidget>
#include <optional>

namespace kinesta {

/// The seconds until the last gesture is forgotten, as a number in a ring that empties step by step.
class CountdownRing final : public QWidget {
    Q_OBJECT

  public:
    explicit CountdownRing(QWidget* parent = nullptr);

    /// Nothing for an empty ring.
    void setSeconds(std::optional<int> seconds);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::optional<int> m_seconds;
};

}  // namespace kinesta
