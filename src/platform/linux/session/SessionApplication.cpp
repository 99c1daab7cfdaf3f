#include "platform/linux/session/SessionApplication.h"

#include <poll.h>

#include <string>
#include <string_view>

#include "platform/linux/process/OtherProcess.h"
#include "platform/linux/session/ControlNames.h"

namespace kinesta {
namespace {

using Steady = std::chrono::steady_clock;

constexpr std::uint64_t kMicroseconds = std::chrono::microseconds(SessionApplication::kPatience).count();

Error hangs(pid_t process) {
    const std::string number = std::to_string(process);
    return {process > 0 ? "Kinesta runs as process " + number + " but does not answer; to end it: kill -9 " + number
                        : "Kinesta does not answer."};
}

/// Whether the bus says that there is no such program or object, or that it left before it answered.
bool meansAbsence(std::string_view error) {
    for (const std::string_view name : {"ServiceUnknown", "NameHasNoOwner", "UnknownObject", "NoReply", "Disconnected"})
        if (error.starts_with("org.freedesktop.DBus.Error.") && error.ends_with(name))
            return true;
    return false;
}

/// The content of the variant that comes next in a message.
template <typename Value>
bool readVariant(sd_bus_message* message, const char* type, Value& value) {
    return sd_bus_message_read(message, "v", type, &value) > 0;
}

bool readVariant(sd_bus_message* message, bool& value) {
    int number = 0;
    const bool isRead = readVariant(message, "b", number);
    value = number != 0;
    return isRead;
}

template <typename E>
bool readVariant(sd_bus_message* message, E& value) {
    const char* raw = nullptr;
    const auto known = readVariant(message, "s", raw) ? fromRawValue<E>(raw) : std::nullopt;
    value = known.value_or(value);
    return known.has_value();
}

bool readProperty(sd_bus_message* message, std::string_view name, ApplicationState& state) {
    if (name == "GesturesEnabled")
        return readVariant(message, state.isGestureEnabled);
    if (name == "WindowVisible")
        return readVariant(message, state.isWindowVisible);
    if (name == "TestActive")
        return readVariant(message, state.isTestActive);
    if (name == "Status")
        return readVariant(message, state.status);
    if (name == "Tray")
        return readVariant(message, state.tray);
    if (name == "StatusText") {
        const char* text = nullptr;
        const bool isRead = readVariant(message, "s", text);
        state.statusText = isRead ? text : "";
        return isRead;
    }
    if (name == "EnabledRules") {
        std::uint32_t number = 0;
        const bool isRead = readVariant(message, "u", number);
        state.enabledRules = number;
        return isRead;
    }
    return false;
}

/// The state in an answer to GetAll. Nothing if a property is missing or not as expected.
std::optional<ApplicationState> readState(sd_bus_message* message) {
    ApplicationState state;
    int known = 0;
    if (sd_bus_message_enter_container(message, 'a', "{sv}") < 0)
        return std::nullopt;
    while (sd_bus_message_enter_container(message, 'e', "sv") > 0) {
        const char* name = nullptr;
        if (sd_bus_message_read(message, "s", &name) <= 0)
            return std::nullopt;
        if (readProperty(message, name, state))
            ++known;
        else if (sd_bus_message_skip(message, "v") < 0)
            return std::nullopt;
        sd_bus_message_exit_container(message);
    }
    constexpr int kProperties = 7;
    return known == kProperties ? std::optional(state) : std::nullopt;
}

}  // namespace

Outcome SessionApplication::ask(ApplicationRequest request) {
    std::optional<OtherProcess> ending;
    const auto answer = callPatiently([&] {
        if (request == ApplicationRequest::quit && !ending)
            if (const pid_t number = process(); number > 0)
                ending.emplace(number);  // before the request: afterwards it may be gone
        return call(request);
    });
    // An application that ends before it has answered has done what it was asked.
    if (!answer && !(ending && ending->waitForEnd(std::chrono::milliseconds::zero())))
        return answer.error();
    if (ending && !ending->waitForEnd(kPatience))
        return Error{"Kinesta was asked to quit but still runs. " + hangs(process()).message};
    return success();
}

Result<RunningApplication::Report> SessionApplication::report() {
    const auto answer =
        callPatiently([this] { return call("org.freedesktop.DBus.Properties", "GetAll", ControlNames::kInterface); });
    if (!answer)
        return answer.error();
    auto state = readState(answer->get());
    if (!state)
        return Error{"The Kinesta that runs is another version; quit it and start it again."};
    return Report{process(), std::move(*state)};
}

std::optional<Outcome> SessionApplication::tryToAsk(ApplicationRequest request) {
    const Answer answer = call(request);
    if (!answer)
        return std::nullopt;
    return answer->isValue() ? success() : Outcome(answer->error());
}

SessionApplication::Answer SessionApplication::call(ApplicationRequest request) {
    const auto ask = [this](const char* method, std::optional<bool> flag = std::nullopt) {
        return call(ControlNames::kInterface, method, nullptr, flag);
    };
    switch (request) {
        case ApplicationRequest::show:
            return ask("Show");
        case ApplicationRequest::hide:
            return ask("Hide");
        case ApplicationRequest::toggle:
            return ask("Toggle");
        case ApplicationRequest::enable:
            return ask("SetGesturesEnabled", true);
        case ApplicationRequest::disable:
            return ask("SetGesturesEnabled", false);
        case ApplicationRequest::reload:
            return ask("Reload");
        case ApplicationRequest::quit:
            break;
    }
    return ask("Quit");
}

SessionApplication::Answer SessionApplication::call(const char* interface, const char* method, const char* text,
                                                    std::optional<bool> flag) {
    sd_bus* bus = m_bus.open();
    sd_bus_message* made = nullptr;
    if (bus == nullptr ||
        sd_bus_message_new_method_call(bus, &made, ControlNames::kService, ControlNames::kPath, interface, method) < 0)
        return std::nullopt;
    const BusMessagePointer question(made);
    // The bus must not start an application only to hide it or to end it.
    sd_bus_message_set_auto_start(question.get(), 0);
    if ((text != nullptr && sd_bus_message_append(question.get(), "s", text) < 0) ||
        (flag && sd_bus_message_append(question.get(), "b", *flag ? 1 : 0) < 0))
        return std::nullopt;
    sd_bus_error error{};
    made = nullptr;
    const auto began = Steady::now();
    const int outcome = sd_bus_call(bus, question.get(), kMicroseconds, &error, &made);
    const std::string name = error.name != nullptr ? error.name : "";
    const std::string message = error.message != nullptr ? error.message : "";
    sd_bus_error_free(&error);
    if (outcome >= 0)
        return Result<BusMessagePointer>(BusMessagePointer(made));
    // By the clock: a program that leaves the bus gives the same error as one that does not answer in time.
    if (Steady::now() - began >= kPatience)
        return Result<BusMessagePointer>(hangs(process()));
    if (meansAbsence(name) || sd_bus_is_open(bus) <= 0)
        return std::nullopt;
    return Result<BusMessagePointer>(Error{"Kinesta refused: " + message});
}

template <typename Call>
Result<BusMessagePointer> SessionApplication::callPatiently(const Call& call) {
    constexpr int kPause = 10;  // milliseconds
    for (const auto deadline = Steady::now() + kPatience;; ::poll(nullptr, 0, kPause)) {
        if (Answer answer = call())
            return std::move(*answer);
        const auto holder = SingleInstance::holder(m_settings);
        if (!holder)
            return Error{"Kinesta is not running."};
        if (holder->role == SingleInstance::Role::daemon)
            return Error{"Only the Kinesta daemon is running, as process " + std::to_string(holder->process) +
                         "; kinesta ctl is for the application."};
        if (!hasBus())
            return Error{"Kinesta runs as process " + std::to_string(holder->process) +
                         ", but there is no session bus to reach it."};
        if (Steady::now() > deadline)
            return hangs(holder->process);
    }
}

pid_t SessionApplication::process() {
    sd_bus* bus = m_bus.open();
    sd_bus_creds* credentials = nullptr;
    pid_t number = 0;
    if (bus != nullptr && sd_bus_get_name_creds(bus, ControlNames::kService, SD_BUS_CREDS_PID, &credentials) >= 0)
        sd_bus_creds_get_pid(credentials, &number);
    sd_bus_creds_unref(credentials);
    return number;
}

}  // namespace kinesta
