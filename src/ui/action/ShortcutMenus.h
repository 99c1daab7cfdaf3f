#pragma once

#include <QBoxLayout>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QWidget>
#include <cstdint>
#include <optional>

#include "rules/ShortcutModifiers.h"

namespace kinesta {

class Desktop;

/// Two buttons with menus: the well-known shortcuts that work here, and every key that has a name. They stand beside
/// each other, or below if there is no room.
class ShortcutMenus final : public QWidget {
    Q_OBJECT

  public:
    /// `desktop` must outlive this.
    explicit ShortcutMenus(Desktop& desktop, QWidget* parent = nullptr);

    /// The present shortcut: another key keeps its modifiers.
    void setShortcut(std::optional<std::uint16_t> keyCode, ShortcutModifiers modifiers);

    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    void chosen(quint16 keyCode, kinesta::ShortcutModifiers modifiers);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void fillPresets();
    void addKeys();
    void showKeys();
    void chooseKey(const QListWidgetItem& item);

    Desktop& m_desktop;
    std::optional<std::uint16_t> m_keyCode;
    ShortcutModifiers m_modifiers;
    QMenu* m_presets;
    QMenu* m_keys;
    QListWidget* m_keyList;
    QPushButton* m_presetButton;
    QPushButton* m_keyButton;
    QBoxLayout* m_line;
};

}  // namespace kinesta
