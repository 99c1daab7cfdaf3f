#pragma once

#include <QDialog>

#include "rules/RuleSelection.h"
#include "ui/WindowParts.h"

namespace kinesta {

/// Shows each gesture as it is recognized while no action runs. The session ends however the sheet closes.
class TestSheet final : public QDialog {
    Q_OBJECT

  public:
    /// Begins the session. The parts must outlive this.
    TestSheet(const WindowParts& parts, QWidget* parent);
    ~TestSheet() override;

    /// Takes every recognized gesture.
    void gestureRecognized(const DetectedGesture& gesture);

  private:
    const WindowParts& m_parts;
};

}  // namespace kinesta
