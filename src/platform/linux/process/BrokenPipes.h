#pragma once

namespace kinesta {

/// Makes writing to a socket whose other end is gone fail, instead of ending the process. XCB writes without
/// MSG_NOSIGNAL, so that the end of the X server would otherwise be ours. Leaves alone what anyone else has set for the
/// signal.
void surviveBrokenPipes();

}  // namespace kinesta
