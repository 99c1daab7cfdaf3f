#pragma once

#include "ui/widgets/ChoiceGroup.h"

namespace kinesta {

/// A few short words side by side, one of them chosen.
class Segments final : public ChoiceGroup {
    Q_OBJECT

  public:
    Segments(const QString& name, QWidget* parent = nullptr);

    void addSegment(int value, const QString& word);

  protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void measure();
};

}  // namespace kinesta
