#pragma once

#include <string>

struct xcb_connection_t;

namespace kinesta {

/// Connects to an X server; an empty name stands for DISPLAY. Never null, but it may have an error; to be disconnected
/// either way. `screen`, if any, gets the number of the screen that the name means.
///
/// On any thread, one connecting at a time: the library that finds the server's password (libXau 1.0) keeps the name of
/// its file in a buffer that all threads share. Like the library's own, this has no time limit.
xcb_connection_t* connectToXServer(const std::string& displayName, int* screen = nullptr);

}  // namespace kinesta
