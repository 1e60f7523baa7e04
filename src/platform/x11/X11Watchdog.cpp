#include "platform/x11/X11Watchdog.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velvane {

namespace {

// What the new process starts with: the socket as its standard input, and nothing else of ours.
class Spawning {
public:
    explicit Spawning(int socket)
    {
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, socket, STDIN_FILENO);
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
        sigset_t signals;
        posix_spawnattr_init(&attributes);
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes, &signals);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&attributes, &signals);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~Spawning()
    {
        posix_spawn_file_actions_destroy(&actions);
        posix_spawnattr_destroy(&attributes);
    }
    Spawning(const Spawning &) = delete;
    Spawning &operator=(const Spawning &) = delete;

    posix_spawn_file_actions_t actions{};
    posix_spawnattr_t attributes{};
};

// The watchdog leaves its first process at once, so this is short.
void reap(pid_t process)
{
    while (waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
    }
}

bool readyByte(int socket)
{
    char byte = 0;
    ssize_t size = 0;
    do {
        size = recv(socket, &byte, 1, 0);
    } while (size < 0 && errno == EINTR);
    return size == 1 && byte == watchdogReady;
}

} // namespace

X11Watchdog::X11Watchdog(QByteArray display, xcb_window_t window)
    : m_display(std::move(display))
    , m_window(window)
{}

X11Watchdog::~X11Watchdog()
{
    close();
}

QString X11Watchdog::program()
{
    // Not the application object's folder, which a tool without one does not know.
    const QString folder = QFileInfo(QFile::symLinkTarget("/proc/self/exe")).path();
    for (const char *place : {"/velvane-watchdog", "/../libexec/velvane/velvane-watchdog"}) {
        const QFileInfo file(folder + QLatin1String(place));
        if (file.isFile() && file.isExecutable())
            return file.filePath();
    }
    return {};
}

bool X11Watchdog::tell(const HeldInput &held)
{
    if (m_socket >= 0 && send(held))
        return true;
    return start() && send(held);
}

bool X11Watchdog::send(const HeldInput &held) const
{
    ssize_t size = 0;
    do {
        size = ::send(m_socket, &held, sizeof held, MSG_NOSIGNAL);
    } while (size < 0 && errno == EINTR);
    return size == ssize_t(sizeof held);
}

bool X11Watchdog::start()
{
    close();
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0)
        return false;
    m_socket = ends[0];
    QByteArray path = QFile::encodeName(program());
    QByteArray display = m_display;
    QByteArray window = QByteArray::number(m_window);
    char *arguments[] = {path.data(), display.data(), window.data(), nullptr};
    const Spawning spawning(ends[1]);
    pid_t process = 0;
    const int fault = posix_spawn(&process, path.constData(), &spawning.actions,
                                  &spawning.attributes, arguments, environ);
    ::close(ends[1]);
    if (fault == 0)
        reap(process);
    if (fault == 0 && readyByte(m_socket))
        return true;
    close();
    return false;
}

void X11Watchdog::close()
{
    if (m_socket >= 0)
        ::close(m_socket);
    m_socket = -1;
}

} // namespace velvane
