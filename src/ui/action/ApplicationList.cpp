#include "ui/action/ApplicationList.h"

#include <utility>

#include "ui/action/ApplicationIcon.h"

namespace kinesta {

ApplicationList::ApplicationList(std::vector<InstalledApplication> applications, QObject* parent)
    : QAbstractListModel(parent), m_applications(std::move(applications)) {}

int ApplicationList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_applications.size());
}

QVariant ApplicationList::data(const QModelIndex& index, int role) const {
    const InstalledApplication& application = m_applications.at(static_cast<std::size_t>(index.row()));
    switch (role) {
        case Qt::DisplayRole:
            return QString::fromStdString(application.name);
        case Qt::ToolTipRole:
        case Qt::AccessibleDescriptionRole:
            return QString::fromStdString(application.path);
        case Qt::DecorationRole: {
            const auto [icon, isNew] = m_icons.try_emplace(index.row());
            if (isNew)
                icon->second = applicationIcon(QString::fromStdString(application.icon));
            return icon->second;
        }
        default:
            return {};
    }
}

QString ApplicationList::path(const QModelIndex& index) const {
    return QString::fromStdString(m_applications.at(static_cast<std::size_t>(index.row())).path);
}

}  // namespace kinesta
