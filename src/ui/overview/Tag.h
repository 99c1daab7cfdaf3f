#pragma once

#include <QLabel>

namespace kinesta {

/// A few words on a pill.
class Tag final : public QLabel {
    Q_OBJECT

  public:
    explicit Tag(const QString& text, QWidget* parent = nullptr);

  protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void measure();
};

}  // namespace kinesta
