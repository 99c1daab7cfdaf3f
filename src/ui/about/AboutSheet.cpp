#include "ui/about/AboutSheet.h"

namespace kinesta {

AboutSheet::AboutSheet(const WindowParts& /*parts*/, WindowCommands& /*commands*/, QWidget* parent) : QDialog(parent) {}

}  // namespace kinesta
