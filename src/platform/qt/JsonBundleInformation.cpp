#include "platform/qt/JsonBundleInformation.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace kinesta {

JsonBundleInformation::JsonBundleInformation(const std::filesystem::path& file) {
    constexpr qint64 kMostBytes = qint64{64} * 1024;
    QFile input(QString::fromStdString(file.string()));
    if (!input.open(QIODevice::ReadOnly))
        return;
    const QJsonObject object = QJsonDocument::fromJson(input.read(kMostBytes)).object();
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        m_values.emplace(entry.key().toStdString(),
                         entry->isString() ? std::optional(entry->toString().toStdString()) : std::nullopt);
}

std::optional<std::string> JsonBundleInformation::string(std::string_view key) const {
    const auto found = m_values.find(key);
    return found == m_values.end() ? std::nullopt : found->second;
}

}  // namespace kinesta
