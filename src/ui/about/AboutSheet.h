#pragma once

#include <QDialog>

#include "ui/WindowCommands.h"
#include "ui/WindowParts.h"

namespace kinesta {

/// Version, licences, and where the files are.
class AboutSheet final : public QDialog {
    Q_OBJECT

  public:
    AboutSheet(const WindowParts& parts, WindowCommands& commands, QWidget* parent);
};

}  // namespace kinesta
