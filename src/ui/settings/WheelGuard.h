#pragma once

#include <QWidget>

namespace kinesta {

/// Lets the wheel scroll the page although the pointer is over a slider or combo box, whose value it would change.
class WheelGuard final : public QObject {
    Q_OBJECT

  public:
    static void install(QWidget& widget);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    using QObject::QObject;
};

}  // namespace kinesta
