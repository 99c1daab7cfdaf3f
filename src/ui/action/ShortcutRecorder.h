#pragma once

#include <QToolButton>
#include <QWidget>
#include <cstdint>
#include <optional>

#include "rules/ShortcutModifiers.h"
#include "ui/action/KeyCapRow.h"
#include "ui/models/ShortcutRecording.h"
#include "ui/widgets/FocusRing.h"

namespace kinesta {

class Desktop;

/// Records a shortcut as it is pressed. While it listens it takes every key.
class ShortcutRecorder final : public QWidget {
    Q_OBJECT

  public:
    /// `desktop` must outlive this.
    explicit ShortcutRecorder(Desktop& desktop, QWidget* parent = nullptr);

    /// Shows a shortcut, or none, without the signal recorded().
    void setShortcut(std::optional<std::uint16_t> keyCode, ShortcutModifiers modifiers);

    /// Listens for a shortcut until one is recorded, or the keyboard focus goes away.
    void start();

    bool isListening() const { return m_recording.state() == ShortcutRecording::State::listening; }
    /// The shortcut in words, such as “Ctrl+Shift+T”.
    QString words() const;
    /// The same sentence as in the last hintChanged().
    const QString& hint() const { return m_hint; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    /// The person pressed or cleared a shortcut; none if `hasKey` is false.
    void recorded(bool hasKey, quint16 keyCode, kinesta::ShortcutModifiers modifiers);
    /// A sentence about the recording: what to press, what arrived, what cannot be expressed; empty for none.
    void hintChanged(const QString& hint);

  protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    bool isStillHeld(const QKeyEvent& event) const;
    bool pressKey(const QKeyEvent& event);
    void arrange();
    void refresh();

    ShortcutRecording m_recording;
    KeyCapRow* m_caps;
    QToolButton* m_clear;
    /// The last pressed key, if we listened then. On macOS Qt gives all keys the same code.
    std::optional<quint32> m_lastKey;
    quint64 m_lastRelease = 0;  // when a key was released, in milliseconds of the server
    QString m_hint;
    QString m_announcedWords;
};

}  // namespace kinesta
