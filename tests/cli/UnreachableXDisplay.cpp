#include "tests/cli/UnreachableXDisplay.h"

#include <cstddef>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace
{

constexpr int kHighestDisplay = 99999;
constexpr int kDisplaysTried = 100;
// How long the watcher waits for a connection before it looks whether it should stop.
constexpr int kWatchMilliseconds = 20;

// A socket listening on the abstract address an X client tries first for display `number`,
// or -1 when that address is taken.
int listenAsDisplay(int number)
{
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (socket < 0) {
        return -1;
    }
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    // An abstract address starts with a zero byte and is as long as the length says.
    const std::string path = "/tmp/.X11-unix/X" + std::to_string(number);
    path.copy(address.sun_path + 1, path.size());
    const auto length = socklen_t(offsetof(sockaddr_un, sun_path) + 1 + path.size());
    if (::bind(socket, reinterpret_cast<const sockaddr*>(&address), length) != 0 ||
        ::listen(socket, 16) != 0) {
        ::close(socket);
        return -1;
    }
    return socket;
}

} // namespace

UnreachableXDisplay::UnreachableXDisplay()
{
    for (number = kHighestDisplay; number > kHighestDisplay - kDisplaysTried; --number) {
        listener = listenAsDisplay(number);
        if (listener >= 0) {
            watcher = std::thread([this] { turnAwayConnections(); });
            return;
        }
    }
}

UnreachableXDisplay::~UnreachableXDisplay()
{
    stopping = true;
    if (watcher.joinable()) {
        watcher.join();
    }
    if (listener >= 0) {
        ::close(listener);
    }
}

QString UnreachableXDisplay::name() const
{
    return QStringLiteral(":%1").arg(number);
}

void UnreachableXDisplay::turnAwayConnections()
{
    pollfd waiting{listener, POLLIN, 0};
    // One more look after the stop, for a connection made just before it.
    bool lastLook = false;
    while (!lastLook) {
        lastLook = stopping.load();
        if (::poll(&waiting, 1, kWatchMilliseconds) <= 0) {
            continue;
        }
        const int connection = ::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (connection >= 0) {
            ++connections;
            ::close(connection);
        }
    }
}
