#include "ui/overview/OverviewPage.h"

namespace kinesta {

OverviewPage::OverviewPage(OverviewModel& /*model*/, const WindowParts& /*parts*/, WindowCommands& /*commands*/) {}

}  // namespace kinesta
