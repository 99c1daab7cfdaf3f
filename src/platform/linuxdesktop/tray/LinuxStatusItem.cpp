#include "platform/linuxdesktop/tray/LinuxStatusItem.h"

#include <QCursor>
#include <QGuiApplication>
#include <utility>

namespace kinesta {
namespace {

constexpr QSize kPoint{1, 1};

}  // namespace

LinuxStatusItem::LinuxStatusItem(const QDBusConnection& bus)
    : m_bus(bus),
      m_exportedMenu(bus, [this](StatusMenuCommand command) { choose(command); }),
      m_notifier(bus, QString::fromLatin1(ExportedMenu::kPath),
                 {.activated = [this](QPoint at) { click({StatusItemClick::Button::left}, QRect(at, kPoint)); },
                  .menuRequested = [this](QPoint at) { click({StatusItemClick::Button::right}, QRect(at, kPoint)); }}),
      m_xembed({.clicked = [this](StatusItemClick click) { this->click(click, m_xembed.place()); },
                .dockingChanged = [this] { updateKind(); }}),
      m_popup([this](StatusMenuCommand command) { choose(command); }) {}

void LinuxStatusItem::create(Handlers handlers) {
    m_handlers = std::move(handlers);
    m_registration = std::make_unique<StatusNotifierRegistration>(
        m_bus, [this](bool isRegistered) { registrationChanged(isRegistered); });
}

void LinuxStatusItem::setState(bool isEnabled, const std::string& accessibilityLabel) {
    const QString description = QString::fromStdString(accessibilityLabel);
    if (isEnabled == m_isEnabled && description == m_description)
        return;  // most changes concern only the menu, and panels redraw at each signal
    m_isEnabled = isEnabled;
    m_description = description;
    showState();
    showTexts();
}

void LinuxStatusItem::setToolTip(const std::string& toolTip) {
    m_toolTip = QString::fromStdString(toolTip);
    showTexts();
}

void LinuxStatusItem::setMenu(const StatusMenu& menu) {
    m_exportedMenu.setMenu(menu);
    m_popup.setMenu(menu);
}

void LinuxStatusItem::openMenu() {
    if (beforeMenu)
        beforeMenu();
    // Some panels name no place, or one in units of their own.
    const bool isKnown = QGuiApplication::screenAt(m_place.topLeft()) != nullptr;
    m_popup.open(isKnown ? m_place : QRect(QCursor::pos(), kPoint));
}

void LinuxStatusItem::setPanelIsDark(bool isDark) {
    m_isDarkPanel = isDark;
    showState();
}

void LinuxStatusItem::registrationChanged(bool isRegistered) {
    m_isRegistered = isRegistered;
    if (isRegistered)
        m_xembed.close();
    else
        m_xembed.open();
    updateKind();
}

void LinuxStatusItem::updateKind() {
    const auto elsewhere = m_xembed.isDocked() ? TrayKind::xembed : TrayKind::none;
    const auto kind = m_isRegistered ? TrayKind::statusNotifier : elsewhere;
    if (kind != m_kind.value())
        m_kind.set(kind);
}

void LinuxStatusItem::showState() {
    m_notifier.setGlyph(m_isEnabled, m_isDarkPanel);
    m_xembed.setGlyph(m_isEnabled, m_isDarkPanel);
}

void LinuxStatusItem::showTexts() {
    m_notifier.setToolTip(m_toolTip, m_description);
    m_xembed.setTexts(m_toolTip, m_description);
}

void LinuxStatusItem::click(StatusItemClick click, const QRect& place) {
    m_place = place;
    if (m_handlers.clicked)
        m_handlers.clicked(click);
}

void LinuxStatusItem::choose(StatusMenuCommand command) {
    if (m_handlers.chosen)
        m_handlers.chosen(command);
}

}  // namespace kinesta
