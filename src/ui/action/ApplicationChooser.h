#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSortFilterProxyModel>

#include "ui/action/ApplicationList.h"
#include "ui/widgets/Words.h"

namespace kinesta {

/// The installed applications to choose one from, with a field to find it.
class ApplicationChooser final : public QDialog {
    Q_OBJECT

  public:
    ApplicationChooser(const InstalledApplications& installed, QWidget* parent);

  Q_SIGNALS:
    /// The absolute path of an application.
    void chosen(const QString& path);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void find(const QString& text);
    void showCurrent();
    void choose();
    void chooseFile();

    ApplicationList* m_all;
    QSortFilterProxyModel* m_found;
    QLineEdit* m_filter;
    QListView* m_list;
    Words* m_path;
    QPushButton* m_choose;
};

}  // namespace kinesta
