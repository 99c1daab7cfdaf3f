#pragma once

#include <QObject>

namespace kinesta {

/// Lets the window take Ctrl+Z and Ctrl+Shift+Z in fields that have no steps of their own left.
class FieldUndo final : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace kinesta
