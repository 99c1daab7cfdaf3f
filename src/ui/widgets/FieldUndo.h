#pragma once

#include <QObject>
#include <functional>

class QKeyEvent;
class QMenu;
class QPoint;
class QWidget;

namespace kinesta {

/// Makes Ctrl+Z, Ctrl+Shift+Z and the menus of fields one history with the steps of fields. What is typed into a field
/// that the history records belongs to the window: its own steps would be a second history beside it. Any other field
/// takes back its own steps first, and the window repeats its own steps first: they were taken back last.
class FieldUndo final : public QObject {
    Q_OBJECT

  public:
    /// The steps of the window.
    struct History {
        std::function<bool()> canUndo;
        std::function<bool()> canRedo;
        std::function<void()> undo;
        std::function<void()> redo;
    };

    FieldUndo(History window, QObject* parent) : QObject(parent), m_window(std::move(window)) {}

    /// Every keystroke in the field is recorded by the history, or not.
    static void setRecorded(QWidget& field, bool isRecorded);
    /// Lets a recorded field follow the history: without own steps nothing is being typed in it.
    static void forgetSteps(QWidget* field);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool takeKey(const QObject& field, QKeyEvent& event) const;
    /// Shows the menu of a recorded field with the steps of the window.
    void showMenu(QMenu& menu, const QPoint& at) const;

    History m_window;
};

}  // namespace kinesta
