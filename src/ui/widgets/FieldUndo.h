#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace kinesta {

/// Makes Ctrl+Z and Ctrl+Shift+Z one history with the steps of fields. What is typed into a field that the history
/// records belongs to the window: its own steps would be a second history beside it. Any other field takes back its own
/// steps first, and the window repeats its own steps first: they were taken back last.
class FieldUndo final : public QObject {
    Q_OBJECT

  public:
    FieldUndo(std::function<bool()> canWindowRedo, QObject* parent)
        : QObject(parent), m_canWindowRedo(std::move(canWindowRedo)) {}

    /// Every keystroke in the field is recorded by the history, or not.
    static void setRecorded(QWidget& field, bool isRecorded);
    /// Lets a recorded field follow the history: without own steps nothing is being typed in it.
    static void forgetSteps(QWidget* field);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::function<bool()> m_canWindowRedo;
};

}  // namespace kinesta
