#pragma once

#include <QDialog>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"

namespace kinesta {

/// Version, licences, and where the files are.
class AboutSheet final : public QDialog {
    Q_OBJECT

  public:
    AboutSheet(const WindowParts& parts, WindowCommands& commands, QWidget* parent);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void showLicences();
    void measure();

    QVBoxLayout* m_column;
    QLabel* m_place;
};

}  // namespace kinesta
