#include "platform/linuxdesktop/tray/StatusNotifierItem.h"

#include <QImage>
#include <QtEndian>
#include <utility>

#include "platform/linuxdesktop/tray/StatusGlyph.h"

namespace kinesta {
namespace {

StatusPixmap pixmap(const QImage& image) {
    const QImage straight = image.convertToFormat(QImage::Format_ARGB32);
    StatusPixmap result{image.width(), image.height(), {}};
    result.pixels.resize(straight.sizeInBytes());
    qToBigEndian<quint32>(straight.constBits(), straight.sizeInBytes() / 4, result.pixels.data());
    return result;
}

}  // namespace

StatusNotifierItem::StatusNotifierItem(QDBusConnection bus, QString menuPath, Handlers handlers)
    : m_bus(std::move(bus)), m_menuPath(std::move(menuPath)), m_handlers(std::move(handlers)) {
    registerStatusNotifierTypes();
    m_bus.registerObject(QString::fromLatin1(kPath), this, QDBusConnection::ExportScriptableContents);
}

StatusNotifierItem::~StatusNotifierItem() { m_bus.unregisterObject(QString::fromLatin1(kPath)); }

void StatusNotifierItem::setGlyph(bool isEnabled, bool isDarkPanel) {
    m_pixmaps.clear();
    for (const int side : {16, 22, 24, 32, 48, 64})
        m_pixmaps.append(pixmap(StatusGlyph::onGround(isEnabled, {side, side}, isDarkPanel)));
    Q_EMIT NewIcon();
}

void StatusNotifierItem::setToolTip(const QString& title, const QString& description) {
    m_toolTipTitle = title;
    m_toolTipDescription = description;
    Q_EMIT NewToolTip();
}

void StatusNotifierItem::Activate(int x, int y) { m_handlers.activated({x, y}); }

void StatusNotifierItem::SecondaryActivate(int /*x*/, int /*y*/) {}

void StatusNotifierItem::ContextMenu(int x, int y) { m_handlers.menuRequested({x, y}); }

void StatusNotifierItem::Scroll(int /*delta*/, const QString& /*orientation*/) {}

}  // namespace kinesta
