#pragma once

#include <QWidget>

namespace kinesta {

/// The edge and the paper of a field around a widget that has none.
class FieldFrame final : public QWidget {
    Q_OBJECT

  public:
    explicit FieldFrame(QWidget* field, QWidget* parent = nullptr);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QWidget* m_field;
};

}  // namespace kinesta
