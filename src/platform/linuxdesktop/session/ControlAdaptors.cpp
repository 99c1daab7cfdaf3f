#include "platform/linuxdesktop/session/ControlAdaptors.h"

#include <QDBusError>

namespace kinesta {
namespace {

QString text(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

}  // namespace

QString ControlAdaptor::status() const { return text(rawValue(state().status)); }

QString ControlAdaptor::tray() const { return text(rawValue(state().tray)); }

void ActivationAdaptor::ActivateAction(const QString& name, const QVariantList& /*parameters*/,
                                       const QVariantMap& /*platformData*/, const QDBusMessage& call) {
    if (const auto request = fromRawValue<ApplicationRequest>(name.toStdString())) {
        m_control.perform(*request);
        return;
    }
    call.setDelayedReply(true);
    m_bus.send(
        call.createErrorReply(QDBusError::InvalidArgs, QStringLiteral("Kinesta has no action \"%1\".").arg(name)));
}

}  // namespace kinesta
