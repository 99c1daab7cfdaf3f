#include "platform/macos/application/MacSignalListener.h"

#include <dispatch/dispatch.h>
#include <objc/objc.h>

#include <csignal>
#include <utility>

namespace kinesta {
namespace {

/// Unlike a signal that is ignored, one with a handler is back at its default in the programs that this one starts.
extern "C" void letSourceSeeIt(int) {}

}  // namespace

struct MacSignalListener::Source {
    int signal = 0;
    struct sigaction before {};
    dispatch_source_t source = nil;
};

struct MacSignalListener::Receiver {
    MainThread& mainThread;
    std::function<void(int)> onSignal;
};

MacSignalListener::MacSignalListener(MainThread& mainThread, const std::vector<int>& signals,
                                     std::function<void(int)> onSignal)
    : m_receiver(std::make_shared<Receiver>(Receiver{mainThread, std::move(onSignal)})) {
    for (const int signal : signals) {
        Source& source = *m_sources.emplace_back(std::make_unique<Source>());
        source.signal = signal;
        open(source);
    }
}

MacSignalListener::~MacSignalListener() {
    for (const auto& source : m_sources)
        close(*source);
}

void MacSignalListener::open(Source& source) {
    const int signal = source.signal;
    source.source = dispatch_source_create(DISPATCH_SOURCE_TYPE_SIGNAL, static_cast<uintptr_t>(signal), 0,
                                           dispatch_get_main_queue());
    const std::weak_ptr<Receiver> weakReceiver = m_receiver;
    dispatch_source_set_event_handler(source.source, ^{
      const auto receiver = weakReceiver.lock();
      if (!receiver)
          return;
      // As a task like others, so that it waits for its turn.
      receiver->mainThread.post([weakReceiver, signal] {
          if (const auto later = weakReceiver.lock())
              later->onSignal(signal);
      });
    });
    dispatch_activate(source.source);
    // The source only watches: the signal would still end or stop the program.
    struct sigaction action {};
    action.sa_handler = letSourceSeeIt;
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, &source.before);
}

void MacSignalListener::close(Source& source) {
    ::sigaction(source.signal, &source.before, nullptr);
    dispatch_source_cancel(source.source);
    source.source = nil;
}

void MacSignalListener::stopUntilContinued() {
    // A source would count this one as well, and the program would stop again as soon as it continues.
    for (const auto& source : m_sources)
        if (source->signal == SIGTSTP)
            close(*source);
    static_cast<void>(::raise(SIGTSTP));
    for (const auto& source : m_sources)
        if (source->signal == SIGTSTP)
            open(*source);
}

}  // namespace kinesta
