#include "platform/linuxdesktop/tray/StatusMenuPopup.h"

#include <QAction>
#include <QGuiApplication>
#include <QMetaObject>
#include <QScreen>
#include <algorithm>

namespace kinesta {

void StatusMenuPopup::setMenu(const StatusMenu& menu) {
    m_items = menu;
    if (m_menu)
        fill();
}

void StatusMenuPopup::open(const QRect& place) {
    if (!m_menu) {
        m_menu = std::make_unique<QMenu>();
        QObject::connect(m_menu.get(), &QMenu::triggered, m_menu.get(), [this](const QAction* action) {
            // Later: what is chosen may change the menu.
            const auto choose =
                [this, command = m_items[static_cast<std::size_t>(m_menu->actions().indexOf(action))].command] {
                    m_chosen(command);
                };
            QMetaObject::invokeMethod(m_menu.get(), choose, Qt::QueuedConnection);
        });
    }
    fill();
    const QScreen* found = QGuiApplication::screenAt(place.center());
    const QRect screen = (found != nullptr ? found : QGuiApplication::primaryScreen())->geometry();
    const QSize size = m_menu->sizeHint();
    const bool fitsBelow = place.bottom() + 1 + size.height() <= screen.bottom() + 1;
    const int right = std::max(screen.left(), screen.right() + 1 - size.width());
    m_menu->popup({std::clamp(place.left(), screen.left(), right),
                   fitsBelow ? place.bottom() + 1 : std::max(screen.top(), place.top() - size.height())});
}

/// Keeps the actions where it can: one of them may be under the pointer.
void StatusMenuPopup::fill() {
    while (m_menu->actions().size() < static_cast<qsizetype>(m_items.size()))
        m_menu->addAction(QString());
    while (m_menu->actions().size() > static_cast<qsizetype>(m_items.size()))
        delete m_menu->actions().last();
    auto action = m_menu->actions().cbegin();
    for (const StatusMenuItem& item : m_items) {
        // A single ampersand would mark the key of the item.
        (*action)->setText(QString::fromStdString(item.title).replace(u'&', QStringLiteral("&&")));
        (*action)->setSeparator(item.isSeparator());
        (*action)->setCheckable(item.isCheckable);
        (*action)->setChecked(item.isCheckable && item.isChecked);
        (*action)->setEnabled(item.isEnabled);
        ++action;
    }
}

}  // namespace kinesta
