#include "platform/posix/SignalMeaning.h"

#include <csignal>

namespace kinesta {

std::vector<int> signalNumbers(const std::vector<ProgramSignal>& requests) {
    std::vector<int> numbers;
    for (const ProgramSignal request : requests) {
        switch (request) {
            case ProgramSignal::end:
                numbers.insert(numbers.end(), {SIGINT, SIGTERM});
                break;
            case ProgramSignal::stop:
                numbers.push_back(SIGTSTP);
                break;
            case ProgramSignal::reload:
                numbers.push_back(SIGHUP);
                break;
            case ProgramSignal::yield:
                numbers.push_back(SIGUSR1);
                break;
        }
    }
    return numbers;
}

ProgramSignal meaningOfSignal(int number) {
    switch (number) {
        case SIGHUP:
            return ProgramSignal::reload;
        case SIGTSTP:
            return ProgramSignal::stop;
        case SIGUSR1:
            return ProgramSignal::yield;
        default:
            return ProgramSignal::end;
    }
}

}  // namespace kinesta
