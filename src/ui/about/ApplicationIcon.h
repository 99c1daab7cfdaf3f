#pragma once

#include <QIcon>
#include <QWidget>

namespace kinesta {

/// The application icon: the drawing of packaging/icons/com.orvane.kinesta.svg.
class ApplicationIcon final : public QWidget {
    Q_OBJECT

  public:
    explicit ApplicationIcon(QWidget* parent = nullptr);

    /// The same for title bars and task lists.
    static QIcon icon();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace kinesta
