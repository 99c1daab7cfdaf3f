#pragma once

#include <QDBusConnection>
#include <QPoint>
#include <QRect>
#include <QString>
#include <functional>
#include <memory>

#include "app/ApplicationState.h"
#include "app/StatusItem.h"
#include "platform/linuxdesktop/tray/ExportedMenu.h"
#include "platform/linuxdesktop/tray/StatusMenuPopup.h"
#include "platform/linuxdesktop/tray/StatusNotifierItem.h"
#include "platform/linuxdesktop/tray/StatusNotifierRegistration.h"
#include "platform/linuxdesktop/tray/XembedIcon.h"
#include "support/Published.h"

namespace kinesta {

/// The icon in the panel of a Linux desktop: a status notifier where a panel takes one, otherwise in the tray of an X11
/// panel. Follows panels as they come, go and restart. Needs the QApplication. Main thread only.
class LinuxStatusItem final : public StatusItem {
  public:
    /// `bus` may be without connection.
    explicit LinuxStatusItem(const QDBusConnection& bus);

    void create(Handlers handlers) override;
    void setState(bool isEnabled, const std::string& accessibilityLabel) override;
    void setToolTip(const std::string& toolTip) override;
    void setMenu(const StatusMenu& menu) override;
    void openMenu() override;

    /// Whether to draw for a dark panel where its colour cannot be seen: as a rule, whether the desktop prefers dark
    /// colours. True until this is called.
    void setPanelIsDark(bool isDark);

    /// Called before a menu of our own opens: until then nothing needs a style.
    std::function<void()> beforeMenu;

    /// Set only when it changes.
    const Published<TrayKind>& kind() const { return m_kind; }

  private:
    void registrationChanged(bool isRegistered);
    void updateKind();
    void showState();
    void showTexts();
    void click(StatusItemClick click, const QRect& place);
    void choose(StatusMenuCommand command);

    Handlers m_handlers;
    bool m_isEnabled = false;
    bool m_isDarkPanel = true;
    QString m_toolTip;
    QString m_description;
    bool m_isRegistered = false;
    Published<TrayKind> m_kind{TrayKind::none};
    /// Where the last click was.
    QRect m_place;

    QDBusConnection m_bus;
    ExportedMenu m_exportedMenu;
    StatusNotifierItem m_notifier;
    XembedIcon m_xembed;
    StatusMenuPopup m_popup;
    std::unique_ptr<StatusNotifierRegistration> m_registration;
};

}  // namespace kinesta
