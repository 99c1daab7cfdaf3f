#pragma once

namespace kinesta {

/// Lets a write to a closed pipe end the program without a message, even if the parent process ignored SIGPIPE. Call it
/// at the start of a program.
void endQuietlyOnClosedPipe();

/// Makes a write to a closed pipe or socket fail instead. For programs that outlive the reader of their log, and for
/// XCB, which writes without MSG_NOSIGNAL: the end of the X server would end the program too. Keeps a handler that is
/// installed for the signal.
void surviveBrokenPipes();

}  // namespace kinesta
