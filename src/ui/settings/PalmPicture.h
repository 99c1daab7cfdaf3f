#pragma once

#include <QWidget>

namespace kinesta {

/// A pad with the corners in which a touch is ignored, at their true size, and those in which corner drawings begin.
class PalmPicture final : public QWidget {
    Q_OBJECT

  public:
    explicit PalmPicture(QWidget* parent = nullptr);

    /// The size of the corners as the setting has it, 0…1.
    void setSensitivity(double sensitivity);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    double m_inset;
};

}  // namespace kinesta
