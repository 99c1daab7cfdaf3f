#pragma once

namespace kinesta {

/// Keeps SIGINT, SIGTERM, SIGHUP and SIGUSR1 from this thread and from all that it starts later, until a
/// SignalListener takes them. For a program whose libraries start threads before it can listen: a signal would end the
/// program through one of them.
void blockProgramSignals();

}  // namespace kinesta
