#pragma once

#include <QComboBox>

#include "ui/widgets/ChoiceGroup.h"

namespace kinesta {

/// A few short words side by side, one of them chosen; a combo box where they do not fit.
class Segments final : public ChoiceGroup {
    Q_OBJECT

  public:
    Segments(const QString& name, QWidget* parent = nullptr);

    void addSegment(int value, const QString& word);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void measure();

    QComboBox* m_combo;
};

}  // namespace kinesta
