#include "platform/linux/windows/I3Socket.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "platform/posix/FileDescriptor.h"

namespace kinesta {
namespace {

constexpr std::string_view kMagic = "i3-ipc";
constexpr std::size_t kHeaderSize = kMagic.size() + 2 * sizeof(std::uint32_t);
/// In bytes. Thousands of windows take less.
constexpr std::uint32_t kLongestAnswer = 16U << 20U;

bool sendAll(int socket, std::string_view text, Deadline deadline) {
    while (!text.empty()) {
        const ssize_t sent = send(socket, text.data(), text.size(), MSG_NOSIGNAL);
        if (sent > 0)
            text.remove_prefix(static_cast<std::size_t>(sent));
        else if (errno != EINTR && (errno != EAGAIN || !awaitReady(socket, POLLOUT, deadline)))
            return false;
    }
    return true;
}

bool receiveAll(int socket, char* to, std::size_t length, Deadline deadline) {
    while (length > 0) {
        const ssize_t received = recv(socket, to, length, 0);
        if (received == 0)
            return false;
        if (received > 0) {
            to += received;
            length -= static_cast<std::size_t>(received);
        } else if (errno != EINTR && (errno != EAGAIN || !awaitReady(socket, POLLIN, deadline))) {
            return false;
        }
    }
    return true;
}

std::string header(I3Question question, const std::string& payload) {
    const std::uint32_t numbers[] = {static_cast<std::uint32_t>(payload.size()), static_cast<std::uint32_t>(question)};
    std::string bytes(kMagic);
    bytes.append(reinterpret_cast<const char*>(numbers), sizeof numbers);  // in the byte order of this machine
    return bytes;
}

}  // namespace

std::optional<std::string> askI3(const std::string& socketPath, I3Question question, const std::string& payload,
                                 Deadline deadline) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (socketPath.empty() || socketPath.size() >= sizeof address.sun_path)
        return std::nullopt;
    std::memcpy(address.sun_path, socketPath.c_str(), socketPath.size());
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (connect(socket.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        !sendAll(socket.number(), header(question, payload) + payload, deadline))
        return std::nullopt;
    char head[kHeaderSize];
    if (!receiveAll(socket.number(), head, sizeof head, deadline) ||
        std::memcmp(head, kMagic.data(), kMagic.size()) != 0)
        return std::nullopt;
    std::uint32_t length = 0;
    std::memcpy(&length, head + kMagic.size(), sizeof length);
    if (length > kLongestAnswer)
        return std::nullopt;
    std::string answer(length, '\0');
    if (!receiveAll(socket.number(), answer.data(), length, deadline))
        return std::nullopt;
    return answer;
}

}  // namespace kinesta
