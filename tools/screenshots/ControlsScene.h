#pragma once

#include <QWidget>

namespace kinesta {

/// Every stock control in its states, as the style draws them.
class ControlsScene final : public QWidget {
    Q_OBJECT

  public:
    ControlsScene();
};

}  // namespace kinesta
