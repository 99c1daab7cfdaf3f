#include "platform/linux/ApplicationClaim.h"

#include <poll.h>

#include <csignal>
#include <string>

#include "platform/linux/process/OtherProcess.h"

namespace kinesta {
namespace {

using Claim = std::optional<SingleInstance>;
using Steady = std::chrono::steady_clock;

/// Asks a daemon to end. Returns whether it ended.
bool replace(const SingleInstance::Holder& daemon, const std::filesystem::path& settings) {
    const OtherProcess process(daemon.process);
    // The number could be another process's if the daemon had ended before it was opened.
    const auto still = SingleInstance::holder(settings);
    if (!process || !still || still->process != daemon.process || still->role != daemon.role)
        return true;
    process.signal(SIGUSR1);
    return process.waitForEnd(SessionApplication::kPatience);
}

}  // namespace

Result<Claim> claimForApplication(const std::filesystem::path& settings, SessionApplication& other,
                                  ApplicationOpening opening) {
    constexpr int kPause = 5;  // milliseconds
    Error inTheWay;
    // Others start, end and are killed while this asks, so each round looks afresh.
    for (const auto deadline = Steady::now() + 2 * SessionApplication::kPatience; Steady::now() < deadline;) {
        auto claimed = SingleInstance::claim(settings, SingleInstance::Role::application);
        if (claimed)
            return Claim(std::move(*claimed));
        inTheWay = claimed.error();
        const auto holder = SingleInstance::holder(settings);
        if (!holder) {  // it has just begun or ended
            ::poll(nullptr, 0, kPause);
            continue;
        }
        inTheWay = holder->error();
        if (holder->role == SingleInstance::Role::daemon) {
            if (!replace(*holder, settings))
                return Error{"The Kinesta daemon was asked to make room but does not end; to end it: kill -9 " +
                             std::to_string(holder->process)};
        } else if (opening == ApplicationOpening::inBackground) {
            return Claim();
        } else if (!other.hasBus()) {
            return Error{holder->error().message +
                         ". No session bus answers over which it could be asked to show its window."};
        } else if (const auto outcome = other.tryToAsk(ApplicationRequest::show)) {
            return *outcome ? Result<Claim>(Claim()) : Result<Claim>(outcome->error());
        } else {
            ::poll(nullptr, 0, kPause);
        }
    }
    return inTheWay;
}

}  // namespace kinesta
