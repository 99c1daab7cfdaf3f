#include "platform/linuxdesktop/cue/NotificationActionCuePanel.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

#include "feedback/ActionCueSettings.h"

namespace kinesta {
namespace {

QDBusMessage call(const QString& method) {
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.Notifications"),
                                          QStringLiteral("/org/freedesktop/Notifications"),
                                          QStringLiteral("org.freedesktop.Notifications"), method);
}

}  // namespace

void NotificationActionCuePanel::setContent(const ActionCueContent& content) {
    m_label = QString::fromStdString(content.label).simplified();
}

void NotificationActionCuePanel::orderFront() {
    m_isVisible = true;
    update();
}

void NotificationActionCuePanel::orderOut() {
    m_isVisible = false;
    update();
}

void NotificationActionCuePanel::animateAlpha(double /*alpha*/, Seconds /*duration*/, std::function<void()> done) {
    done();
}

void NotificationActionCuePanel::update() {
    m_isOutdated = true;
    if (m_isUnanswered)
        return;
    m_isOutdated = false;
    if (m_isVisible)
        notify();
    else if (m_shown != 0)
        close();
}

void NotificationActionCuePanel::notify() {
    auto message = call(QStringLiteral("Notify"));
    const QVariantMap hints{{QStringLiteral("transient"), true},
                            {QStringLiteral("urgency"), QVariant::fromValue(uchar{0})}};
    message << QStringLiteral("Kinesta") << m_shown << QStringLiteral("kinesta") << m_label << QString()
            << QStringList() << hints << static_cast<int>(ActionCueSettings::maximumDuration * 1000);
    m_isUnanswered = true;
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        const QDBusPendingReply<uint> reply = *finished;
        m_shown = reply.isValid() ? reply.value() : 0;
        m_isUnanswered = false;
        finished->deleteLater();
        if (m_isOutdated)
            update();
    });
}

void NotificationActionCuePanel::close() {
    auto message = call(QStringLiteral("CloseNotification"));
    message << std::exchange(m_shown, 0);
    m_bus.asyncCall(message);
}

}  // namespace kinesta
