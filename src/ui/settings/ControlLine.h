#pragma once

#include <QWidget>
#include <initializer_list>

namespace kinesta {

/// Several controls at the end of one row.
class ControlLine final : public QWidget {
    Q_OBJECT

  public:
    explicit ControlLine(std::initializer_list<QWidget*> controls);

  protected:
    void changeEvent(QEvent* event) override;
};

}  // namespace kinesta
