#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QString>
#include <functional>

#include "platform/linuxdesktop/tray/StatusNotifierTypes.h"

namespace kinesta {

/// The object that panels read and click: org.kde.StatusNotifierItem at kPath. Main thread only.
class StatusNotifierItem final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QString Id READ identifier CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QString Title READ title CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QString Status READ status CONSTANT SCRIPTABLE true)
    Q_PROPERTY(int WindowId READ windowId CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QString IconName READ iconName CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QList<kinesta::StatusPixmap> IconPixmap READ iconPixmap SCRIPTABLE true)
    Q_PROPERTY(kinesta::StatusToolTip ToolTip READ toolTip SCRIPTABLE true)
    Q_PROPERTY(bool ItemIsMenu READ isMenu CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT SCRIPTABLE true)

  public:
    static constexpr const char* kPath = "/StatusNotifierItem";

    struct Handlers {
        // With the place on the screen that the panel names.
        std::function<void(QPoint)> activated;
        std::function<void(QPoint)> menuRequested;
    };

    /// `menuPath` is that of the exported menu.
    StatusNotifierItem(QDBusConnection bus, QString menuPath, Handlers handlers);
    ~StatusNotifierItem() override;

    void setGlyph(bool isEnabled, bool isDarkPanel);
    void setToolTip(const QString& title, const QString& description);

    QString category() const { return QStringLiteral("ApplicationStatus"); }
    QString identifier() const { return QStringLiteral("com.orvane.kinesta"); }
    QString title() const { return QStringLiteral("Kinesta"); }
    /// Active also while gestures are off: panels hide passive items.
    QString status() const { return QStringLiteral("Active"); }
    int windowId() const { return 0; }
    /// None: a panel would prefer it to the pixmaps, whether it finds such a picture or not.
    QString iconName() const { return {}; }
    QList<StatusPixmap> iconPixmap() const { return m_pixmaps; }
    StatusToolTip toolTip() const { return {{}, {}, m_toolTipTitle, m_toolTipDescription}; }
    bool isMenu() const { return false; }
    QDBusObjectPath menu() const { return QDBusObjectPath(m_menuPath); }

    Q_SLOT Q_SCRIPTABLE void Activate(int x, int y);
    /// The middle button does nothing: an accidental one must not.
    Q_SLOT Q_SCRIPTABLE void SecondaryActivate(int x, int y);
    Q_SLOT Q_SCRIPTABLE void ContextMenu(int x, int y);
    Q_SLOT Q_SCRIPTABLE void Scroll(int delta, const QString& orientation);

  Q_SIGNALS:
    Q_SCRIPTABLE void NewIcon();
    Q_SCRIPTABLE void NewToolTip();
    Q_SCRIPTABLE void NewStatus(const QString& status);

  private:
    QDBusConnection m_bus;
    QString m_menuPath;
    Handlers m_handlers;
    QList<StatusPixmap> m_pixmaps;
    QString m_toolTipTitle;
    QString m_toolTipDescription;
};

}  // namespace kinesta
