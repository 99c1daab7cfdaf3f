#pragma once

#include <QPushButton>
#include <QWidget>

#include "ui/widgets/PadPicture.h"
#include "ui/widgets/Words.h"

namespace kinesta {

/// What stands in the place of a list without rows.
class EmptyList final : public QWidget {
    Q_OBJECT

  public:
    explicit EmptyList(QWidget* parent = nullptr);

    /// The filter that finds nothing; empty if there are no rules at all.
    void setFilter(const QString& filter);

  Q_SIGNALS:
    void addWanted();
    void clearWanted();

  private:
    PadPicture* m_pad;
    Words* m_nothing;
    Words* m_notFound;
    QPushButton* m_add;
    QPushButton* m_clear;
};

}  // namespace kinesta
