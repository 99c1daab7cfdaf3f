#pragma once

#include <QBoxLayout>
#include <QWidget>

namespace kinesta {

/// Controls beside each other, or below each other where they are too wide together.
class WrappingLine final : public QWidget {
    Q_OBJECT

  public:
    explicit WrappingLine(QWidget* parent = nullptr);

    /// Takes it in at the end. One with `stretch` takes the room that is left.
    void add(QWidget* part, int stretch = 0);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    int widthTogether() const;

    QBoxLayout* m_line;
};

}  // namespace kinesta
