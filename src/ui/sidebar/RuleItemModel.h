#pragma once

#include <QAbstractListModel>
#include <set>
#include <string>
#include <vector>

#include "ui/models/RuleListModel.h"

namespace kinesta {

/// The rows of the sidebar for a list view. Reports only what differs, so that selection and place stay.
class RuleItemModel final : public QAbstractListModel {
    Q_OBJECT

  public:
    /// `rules` must outlive this.
    explicit RuleItemModel(const RuleListModel& rules, QObject* parent = nullptr);

    const RuleRow& row(int index) const { return m_rows[static_cast<std::size_t>(index)]; }
    /// Invalid for a rule without a row.
    QModelIndex indexOf(const Uuid& rule) const;
    /// Gesture and action in one line.
    static QString detail(const RuleRow& row);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  Q_SIGNALS:
    /// Before and after the rows change.
    void willFollow();
    void followed();

  private:
    using Rows = std::vector<RuleRow>;

    void follow(const Rows& rows);
    void removeOthers(const Rows& rows);
    void reorder(const Rows& rows);
    void insertNew(const Rows& rows);
    void replaceChanged(const Rows& rows);

    const RuleListModel& m_rules;
    Rows m_rows;
    std::string m_filter;
    Subscription m_observer;
};

}  // namespace kinesta
