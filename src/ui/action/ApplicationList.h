#pragma once

#include <QAbstractListModel>
#include <QIcon>
#include <map>
#include <vector>

#include "app/InstalledApplications.h"

namespace kinesta {

/// The installed applications for a list. Finds the icon of each when it is first shown.
class ApplicationList final : public QAbstractListModel {
    Q_OBJECT

  public:
    explicit ApplicationList(std::vector<InstalledApplication> applications, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QString path(const QModelIndex& index) const;

  private:
    std::vector<InstalledApplication> m_applications;
    mutable std::map<int, QIcon> m_icons;
};

}  // namespace kinesta
