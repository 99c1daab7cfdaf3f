#pragma once

#include <QWidget>
#include <cstdint>
#include <optional>

#include "rules/ShortcutModifiers.h"

namespace kinesta {

class Desktop;

/// Records a shortcut as it is pressed.
class ShortcutRecorder final : public QWidget {
    Q_OBJECT

  public:
    explicit ShortcutRecorder(Desktop& desktop, QWidget* parent = nullptr);

    /// Shows a shortcut, or none, without a signal.
    void setShortcut(std::optional<std::uint16_t> keyCode, ShortcutModifiers modifiers);

  Q_SIGNALS:
    /// The person pressed, chose or cleared a shortcut; none if `hasKey` is false.
    void recorded(bool hasKey, quint16 keyCode, kinesta::ShortcutModifiers modifiers);
    /// A sentence about the recording: what to press, what arrived, what cannot be expressed; empty for none.
    void hintChanged(const QString& hint);
};

}  // namespace kinesta
