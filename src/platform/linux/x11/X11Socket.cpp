#include "platform/linux/x11/X11Socket.h"

#include <X11/X.h>
#include <X11/Xauth.h>
#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace kinesta {
namespace {

constexpr int kFirstPort = 6000;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
    void operator()(addrinfo* list) const { freeaddrinfo(list); }
    void operator()(Xauth* entry) const { XauDisposeAuth(entry); }
};

/// Empty unless connected. `isHanging` becomes true if a server listens there but does not accept in time.
FileDescriptor connected(const sockaddr* address, socklen_t length, Deadline deadline, bool& isHanging) {
    FileDescriptor socket(::socket(address->sa_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!socket || ::connect(socket.number(), address, length) == 0)
        return socket;
    if (errno == EAGAIN)  // a local server with a full queue
        isHanging = true;
    if (errno != EINPROGRESS)
        return {};
    int error = 0;
    socklen_t size = sizeof error;
    if (!awaitReady(socket.number(), POLLOUT, deadline)) {
        isHanging = true;
        return {};
    }
    if (getsockopt(socket.number(), SOL_SOCKET, SO_ERROR, &error, &size) != 0 || error != 0)
        return {};
    return socket;
}

FileDescriptor connectedHere(const std::string& path, Deadline deadline, bool& isHanging) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() + 1 >= sizeof address.sun_path)
        return {};
    // On Linux the server listens on two sockets: one without a file, whose name begins with a zero byte, and one with
    // a file.
    for (const std::size_t start : {std::size_t{1}, std::size_t{0}}) {
        std::memset(address.sun_path, 0, sizeof address.sun_path);
        std::memcpy(address.sun_path + start, path.data(), path.size());
        const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + path.size());
        if (auto socket = connected(reinterpret_cast<const sockaddr*>(&address), length, deadline, isHanging))
            return socket;
    }
    return {};
}

FileDescriptor connectedThere(const std::string& host, int display, Deadline deadline, bool& isHanging) {
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (getaddrinfo(host.c_str(), std::to_string(kFirstPort + display).c_str(), &hints, &found) != 0)
        return {};
    const std::unique_ptr<addrinfo, Free> list(found);
    for (const addrinfo* each = found; each != nullptr; each = each->ai_next)
        if (auto socket = connected(each->ai_addr, each->ai_addrlen, deadline, isHanging))
            return socket;
    return {};
}

/// How ~/.Xauthority names the server: by its address, or by this machine's name if it runs here.
struct ServerAddress {
    std::uint16_t family = FamilyLocal;
    std::string bytes;
};

ServerAddress addressOf(int socket) {
    sockaddr_storage peer{};
    socklen_t size = sizeof peer;
    getpeername(socket, reinterpret_cast<sockaddr*>(&peer), &size);
    if (peer.ss_family == AF_INET) {
        const auto& address = reinterpret_cast<const sockaddr_in&>(peer).sin_addr;
        if (address.s_addr != htonl(INADDR_LOOPBACK))
            return {FamilyInternet, {reinterpret_cast<const char*>(&address), sizeof address}};
    } else if (peer.ss_family == AF_INET6) {
        const auto& address = reinterpret_cast<const sockaddr_in6&>(peer).sin6_addr;
        if (!IN6_IS_ADDR_LOOPBACK(&address))
            return {FamilyInternet6, {reinterpret_cast<const char*>(&address), sizeof address}};
    }
    std::array<char, 256> name{};
    gethostname(name.data(), name.size() - 1);
    return {FamilyLocal, name.data()};
}

std::unique_ptr<Xauth, Free> passwordFor(const ServerAddress& server, int display) {
    // libXau 1.0 keeps the name of the file in a buffer that all threads share.
    static std::mutex reading;
    const std::lock_guard guard(reading);
    char kind[] = "MIT-MAGIC-COOKIE-1";
    char* kinds[] = {kind};
    const int lengths[] = {static_cast<int>(sizeof kind - 1)};
    const std::string number = std::to_string(display);
    return std::unique_ptr<Xauth, Free>(
        XauGetBestAuthByAddr(server.family, static_cast<unsigned short>(server.bytes.size()), server.bytes.data(),
                             static_cast<unsigned short>(number.size()), number.data(), 1, kinds, lengths));
}

}  // namespace

SocketDeadline::SocketDeadline(int socket, Deadline deadline)
    : m_socket(fcntl(socket, F_DUPFD_CLOEXEC, 0)), m_thread([this, deadline] {
          std::unique_lock lock(m_lock);
          if (m_end.wait_until(lock, deadline, [this] { return m_isOver; }))
              return;
          m_hasPassed = true;
          ::shutdown(m_socket.number(), SHUT_RDWR);
      }) {}

SocketDeadline::~SocketDeadline() {
    {
        const std::lock_guard guard(m_lock);
        m_isOver = true;
    }
    m_end.notify_one();
    m_thread.join();
}

bool SocketDeadline::hasPassed() {
    const std::lock_guard guard(m_lock);
    return m_hasPassed;
}

X11Socket X11Socket::connect(const std::string& displayName, Deadline deadline) {
    X11Socket result;
    char* hostName = nullptr;
    if (xcb_parse_display(displayName.empty() ? nullptr : displayName.c_str(), &hostName, &result.display,
                          &result.screen) == 0)
        return result;
    const std::unique_ptr<char, Free> owned(hostName);
    const std::string host = hostName;
    if (host.empty() || host == "unix")
        result.socket = connectedHere("/tmp/.X11-unix/X" + std::to_string(result.display), deadline, result.isHanging);
    else
        result.socket = connectedThere(host, result.display, deadline, result.isHanging);
    return result;
}

xcb_connection_t* X11Socket::authorize() const {
    const auto password = passwordFor(addressOf(socket.number()), display);
    xcb_auth_info_t authorization{};
    if (password)
        authorization = {password->name_length, password->name, password->data_length, password->data};
    return xcb_connect_to_fd(fcntl(socket.number(), F_DUPFD_CLOEXEC, 0), password ? &authorization : nullptr);
}

}  // namespace kinesta
