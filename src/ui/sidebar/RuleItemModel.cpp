#include "ui/sidebar/RuleItemModel.h"

#include <algorithm>
#include <map>

namespace kinesta {
namespace {

std::map<Uuid, int> placesOf(const std::vector<RuleRow>& rows) {
    std::map<Uuid, int> places;
    for (const RuleRow& row : rows)
        places.emplace(row.id, static_cast<int>(places.size()));
    return places;
}

bool hasTwins(const std::vector<RuleRow>& rows) { return placesOf(rows).size() != rows.size(); }

}  // namespace

RuleItemModel::RuleItemModel(const RuleListModel& rules, QObject* parent)
    : QAbstractListModel(parent),
      m_rules(rules),
      m_rows(rules.rows().value()),
      m_filter(rules.filter().value()),
      m_observer(rules.rows().observe([this](const Rows& rows) { follow(rows); })) {}

QModelIndex RuleItemModel::indexOf(const Uuid& rule) const {
    const auto found = std::ranges::find(m_rows, rule, &RuleRow::id);
    return found == m_rows.end() ? QModelIndex() : index(static_cast<int>(found - m_rows.begin()));
}

QString RuleItemModel::detail(const RuleRow& row) {
    return tr("%1 · %2").arg(QString::fromStdString(row.gesture), QString::fromStdString(row.action));
}

int RuleItemModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant RuleItemModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const RuleRow& shown = row(index.row());
    switch (role) {
        case Qt::DisplayRole:
            return QString::fromStdString(shown.name);
        case Qt::CheckStateRole:
            return shown.isEnabled ? Qt::Checked : Qt::Unchecked;
        case Qt::AccessibleDescriptionRole:
            return shown.reason.empty() ? detail(shown)
                                        : tr("%1. %2").arg(detail(shown), QString::fromStdString(shown.reason));
        default:
            return {};
    }
}

Qt::ItemFlags RuleItemModel::flags(const QModelIndex& index) const {
    return index.isValid()
               ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemNeverHasChildren
               : Qt::NoItemFlags;
}

void RuleItemModel::follow(const Rows& rows) {
    Q_EMIT willFollow();
    // What a keystroke in the editor does.
    if (std::ranges::equal(m_rows, rows, {}, &RuleRow::id, &RuleRow::id)) {
        m_filter = m_rules.filter().value();
        replaceChanged(rows);
        Q_EMIT followed();
        return;
    }
    // A letter in the filter may take hundreds of rows from everywhere. A file written by hand may have an identifier
    // twice.
    if (m_filter != m_rules.filter().value() || hasTwins(m_rows) || hasTwins(rows)) {
        beginResetModel();
        m_filter = m_rules.filter().value();
        m_rows = rows;
        endResetModel();
    } else {
        removeOthers(rows);
        reorder(rows);
        insertNew(rows);
        replaceChanged(rows);
    }
    Q_EMIT followed();
}

void RuleItemModel::removeOthers(const Rows& rows) {
    const std::map<Uuid, int> wanted = placesOf(rows);
    for (std::size_t end = m_rows.size(); end > 0;) {
        std::size_t begin = end;
        while (begin > 0 && !wanted.contains(m_rows[begin - 1].id))
            --begin;
        if (begin == end) {
            --end;
            continue;
        }
        beginRemoveRows({}, static_cast<int>(begin), static_cast<int>(end) - 1);
        m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(begin),
                     m_rows.begin() + static_cast<std::ptrdiff_t>(end));
        endRemoveRows();
        end = begin;
    }
}

void RuleItemModel::reorder(const Rows& rows) {
    const std::map<Uuid, int> wanted = placesOf(rows);
    const auto wantedPlace = [&wanted](const RuleRow& row) { return wanted.at(row.id); };
    if (std::ranges::is_sorted(m_rows, {}, wantedPlace))
        return;
    Q_EMIT layoutAboutToBeChanged();
    const Rows before = m_rows;
    std::ranges::sort(m_rows, {}, wantedPlace);
    const std::map<Uuid, int> places = placesOf(m_rows);
    const QModelIndexList kept = persistentIndexList();
    for (const QModelIndex& old : kept)
        changePersistentIndex(old, index(places.at(before[static_cast<std::size_t>(old.row())].id)));
    Q_EMIT layoutChanged();
}

void RuleItemModel::insertNew(const Rows& rows) {
    for (std::size_t begin = 0; begin < rows.size();) {
        // What stands at `begin` already is there; so far both lists are equal.
        std::size_t end = begin;
        while (end < rows.size() && (begin >= m_rows.size() || rows[end].id != m_rows[begin].id))
            ++end;
        if (begin == end) {
            ++begin;
            continue;
        }
        beginInsertRows({}, static_cast<int>(begin), static_cast<int>(end) - 1);
        m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(begin),
                      rows.begin() + static_cast<std::ptrdiff_t>(begin),
                      rows.begin() + static_cast<std::ptrdiff_t>(end));
        endInsertRows();
        begin = end;
    }
}

void RuleItemModel::replaceChanged(const Rows& rows) {
    for (int i = 0; i < rowCount(); ++i) {
        const auto place = static_cast<std::size_t>(i);
        if (m_rows[place] == rows[place])
            continue;
        m_rows[place] = rows[place];
        Q_EMIT dataChanged(index(i), index(i));
    }
}

}  // namespace kinesta
