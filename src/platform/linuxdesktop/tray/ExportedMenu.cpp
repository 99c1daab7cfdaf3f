#include "platform/linuxdesktop/tray/ExportedMenu.h"

#include <QDBusError>
#include <QGuiApplication>
#include <QMetaObject>
#include <algorithm>
#include <utility>

namespace kinesta {
namespace {

/// The menu itself.
constexpr int kRoot = 0;

QString asQt(const std::string& text) { return QString::fromStdString(text); }

QVariantMap allProperties(const StatusMenuItem& item) {
    if (item.isSeparator())
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    // A single underscore would mark the key of the item.
    QVariantMap properties{{QStringLiteral("label"), asQt(item.title).replace(u'_', QStringLiteral("__"))},
                           {QStringLiteral("enabled"), item.isEnabled}};
    if (item.isCheckable) {
        properties.insert(QStringLiteral("toggle-type"), QStringLiteral("checkmark"));
        properties.insert(QStringLiteral("toggle-state"), item.isChecked ? 1 : 0);
    }
    return properties;
}

/// Whether an open menu can show one in place of the other by changing texts and marks.
bool haveSameLayout(const StatusMenu& a, const StatusMenu& b) {
    return std::ranges::equal(a, b, [](const StatusMenuItem& one, const StatusMenuItem& other) {
        return one.isSeparator() == other.isSeparator() && one.command == other.command &&
               one.isCheckable == other.isCheckable;
    });
}

}  // namespace

ExportedMenu::ExportedMenu(QDBusConnection bus, Chosen chosen) : m_bus(std::move(bus)), m_chosen(std::move(chosen)) {
    registerExportedMenuTypes();
    m_bus.registerObject(QString::fromLatin1(kPath), this, QDBusConnection::ExportScriptableContents);
}

ExportedMenu::~ExportedMenu() { m_bus.unregisterObject(QString::fromLatin1(kPath)); }

void ExportedMenu::setMenu(const StatusMenu& menu) {
    const StatusMenu before = std::exchange(m_menu, menu);
    if (!haveSameLayout(before, menu)) {
        m_first += static_cast<int>(before.size());
        Q_EMIT LayoutUpdated(++m_revision, kRoot);
        return;
    }
    QList<ExportedMenuItem> changed;
    for (std::size_t i = 0; i < menu.size(); ++i)
        if (menu[i] != before[i])
            changed.append({idAt(i), allProperties(menu[i])});
    if (!changed.isEmpty())
        Q_EMIT ItemsPropertiesUpdated(changed, {});
}

QString ExportedMenu::textDirection() const {
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

uint ExportedMenu::GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                             ExportedMenuLayout& layout) {
    if (const auto own = properties(parentId, propertyNames))
        layout = {parentId, *own, {}};
    else
        refuse({parentId});
    if (parentId == kRoot && recursionDepth != 0)
        for (std::size_t i = 0; i < m_menu.size(); ++i)
            layout.children.append({idAt(i), *properties(idAt(i), propertyNames)});
    return m_revision;
}

QList<ExportedMenuItem> ExportedMenu::GetGroupProperties(const QList<int>& ids, const QStringList& propertyNames) {
    QList<ExportedMenuItem> items;
    const auto add = [&](int id) {
        if (const auto own = properties(id, propertyNames))
            items.append({id, *own});
    };
    std::ranges::for_each(ids, add);
    if (ids.isEmpty())  // all of them
        for (int id = m_first; find(id) != nullptr; ++id)
            add(id);
    return items;
}

QDBusVariant ExportedMenu::GetProperty(int id, const QString& name) {
    const auto own = properties(id, {name});
    if (!own)
        refuse({id});
    else if (own->isEmpty())
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("Menu item %1 has no property “%2”.").arg(id).arg(name));
    else
        return QDBusVariant(own->first());
    return QDBusVariant(false);  // not sent
}

void ExportedMenu::Event(int id, const QString& eventId, const QDBusVariant& /*data*/, uint /*timestamp*/) {
    if (!handle(id, eventId))
        refuse({id});
}

QList<int> ExportedMenu::EventGroup(const QList<ExportedMenuEvent>& events) {
    QList<int> errors;
    for (const ExportedMenuEvent& event : events)
        if (!handle(event.id, event.type))
            errors.append(event.id);
    if (!errors.isEmpty() && errors.size() == events.size())
        refuse(errors);
    return errors;
}

/// The menu is always current.
bool ExportedMenu::AboutToShow(int id) {
    refuse(unknown({id}));
    return false;
}

QList<int> ExportedMenu::AboutToShowGroup(const QList<int>& ids, QList<int>& idErrors) {
    idErrors = unknown(ids);
    if (idErrors.size() == ids.size())
        refuse(idErrors);
    return {};
}

const StatusMenuItem* ExportedMenu::find(int id) const {
    if (id < m_first || id - m_first >= static_cast<int>(m_menu.size()))
        return nullptr;
    return &m_menu[static_cast<std::size_t>(id - m_first)];
}

std::optional<QVariantMap> ExportedMenu::properties(int id, const QStringList& names) const {
    const StatusMenuItem* item = find(id);
    if (item == nullptr && id != kRoot)
        return std::nullopt;
    QVariantMap all = item != nullptr ? allProperties(*item)
                                      : QVariantMap{{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    if (!names.isEmpty())
        all.removeIf([&](const auto& entry) { return !names.contains(entry.key()); });
    return all;
}

QList<int> ExportedMenu::unknown(const QList<int>& ids) const {
    QList<int> result;
    std::ranges::copy_if(ids, std::back_inserter(result),
                         [this](int id) { return id != kRoot && find(id) == nullptr; });
    return result;
}

/// Whether the item exists.
bool ExportedMenu::handle(int id, const QString& event) {
    const StatusMenuItem* item = find(id);
    if (item != nullptr && item->isEnabled && event == QStringLiteral("clicked")) {
        // Later: a command may take longer than the panel waits, or end this object.
        const auto choose = [this, command = item->command] { m_chosen(command); };
        QMetaObject::invokeMethod(this, choose, Qt::QueuedConnection);
    }
    return item != nullptr || id == kRoot;
}

void ExportedMenu::refuse(const QList<int>& ids) {
    if (!ids.isEmpty())
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("The menu has no item %1.").arg(ids.first()));
}

}  // namespace kinesta
