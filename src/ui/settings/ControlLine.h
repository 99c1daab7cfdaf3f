#pragma once

#include <QBoxLayout>
#include <QWidget>
#include <initializer_list>

namespace kinesta {

/// Several controls at the end of one row; among each other where they do not fit beside each other.
class ControlLine final : public QWidget {
    Q_OBJECT

  public:
    explicit ControlLine(std::initializer_list<QWidget*> controls);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void place();

    QBoxLayout* m_line;
};

}  // namespace kinesta
