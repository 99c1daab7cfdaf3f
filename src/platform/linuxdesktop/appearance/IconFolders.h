#pragma once

namespace kinesta {

/// Lets QIcon::fromTheme() find the icons of applications in the data folders of the session. Qt looks there by itself
/// only with a plug-in for the desktop, which we do not load. Needs the QGuiApplication.
void useIconFolders();

}  // namespace kinesta
