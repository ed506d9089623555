// SPDX-License-Identifier: MIT
#include "pdf/ChildProcess.h"

#include "base/SystemError.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <QFile>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace leafcast {

namespace {

    /// How the child starts: own process group, no signal blocked or ignored on our account.
    class SpawnAttributes {
    public:
        SpawnAttributes()
        {
            posix_spawnattr_init(&iAttributes);
            sigset_t signals;
            sigemptyset(&signals);
            posix_spawnattr_setsigmask(&iAttributes, &signals);
            sigaddset(&signals, SIGPIPE);
            sigaddset(&signals, SIGINT);
            sigaddset(&signals, SIGTERM);
            sigaddset(&signals, SIGCHLD);
            posix_spawnattr_setsigdefault(&iAttributes, &signals);
            posix_spawnattr_setpgroup(&iAttributes, 0);
            posix_spawnattr_setflags(&iAttributes,
                POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
        }
        SpawnAttributes(const SpawnAttributes&) = delete;
        SpawnAttributes& operator=(const SpawnAttributes&) = delete;
        ~SpawnAttributes() { posix_spawnattr_destroy(&iAttributes); }

        const posix_spawnattr_t* get() const { return &iAttributes; }

    private:
        posix_spawnattr_t iAttributes{};
    };

    class StandardStreams {
    public:
        StandardStreams(int socket, int errors)
        {
            posix_spawn_file_actions_init(&iActions);
            posix_spawn_file_actions_adddup2(&iActions, socket, STDIN_FILENO);
            posix_spawn_file_actions_adddup2(&iActions, socket, STDOUT_FILENO);
            posix_spawn_file_actions_adddup2(&iActions, errors, STDERR_FILENO);
            // Who started us may have left us more than we know of.
            posix_spawn_file_actions_addclosefrom_np(&iActions, STDERR_FILENO + 1);
        }
        StandardStreams(const StandardStreams&) = delete;
        StandardStreams& operator=(const StandardStreams&) = delete;
        ~StandardStreams() { posix_spawn_file_actions_destroy(&iActions); }

        const posix_spawn_file_actions_t* get() const { return &iActions; }

    private:
        posix_spawn_file_actions_t iActions{};
    };

    /// Who started us may have made us ignore SIGCHLD, and with it how our children end: the system
    /// would drop them at once, and give their number away.
    void keepEndedChildren()
    {
        struct sigaction action { };
        if (sigaction(SIGCHLD, nullptr, &action) == 0
            && (action.sa_handler == SIG_IGN || (action.sa_flags & SA_NOCLDWAIT)))
            std::signal(SIGCHLD, SIG_DFL);
    }

    ChildProcess::Ending endingOf(int status)
    {
        using How = ChildProcess::Ending::How;
        if (WIFSIGNALED(status))
            return { .how = How::Signal, .code = WTERMSIG(status) };
        return { .how = How::ExitStatus, .code = WEXITSTATUS(status) };
    }

} // namespace

ChildProcess::~ChildProcess()
{
    end();
}

FileDescriptor ChildProcess::start(const QString& program, const QStringList& arguments)
{
    end();
    std::array<int, 2> sockets{ -1, -1 };
    std::array<int, 2> errors{ -1, -1 };
    // A full pipe must not hold up the child: what it can't write there at once is lost.
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets.data()) != 0
        || pipe2(errors.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        iError = systemErrorText();
        FileDescriptor(sockets[0]).close();
        FileDescriptor(sockets[1]).close();
        return {};
    }
    FileDescriptor ours(sockets[0]);
    const FileDescriptor theirs(sockets[1]);
    const FileDescriptor theirErrors(errors[1]);
    iErrors = FileDescriptor(errors[0]);
    return spawn(program, arguments, theirs.get(), theirErrors.get()) ? std::move(ours)
                                                                      : FileDescriptor();
}

bool ChildProcess::spawn(
    const QString& program, const QStringList& arguments, int socket, int errors)
{
    QByteArrayList words{ QFile::encodeName(program) };
    for (const QString& argument : arguments)
        words.append(argument.toLocal8Bit());
    std::vector<char*> argv;
    for (QByteArray& word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);

    const SpawnAttributes attributes;
    const StandardStreams streams(socket, errors);
    const std::lock_guard lock(iMutex);
    if (iStopped) {
        iError = u"it was stopped"_s;
        return false;
    }
    keepEndedChildren();
    pid_t pid = 0;
    const int failure
        = posix_spawn(&pid, argv[0], streams.get(), attributes.get(), argv.data(), environ);
    iError = failure == 0 ? QString() : systemErrorText(failure);
    iPid = failure == 0 ? pid : 0;
    return failure == 0;
}

ChildProcess::Ending ChildProcess::end()
{
    const std::lock_guard lock(iMutex);
    if (iPid == 0)
        return {};
    kill(); // no effect on the status of one that is ending by itself
    int status = 0;
    pid_t waitedFor = 0;
    do
        waitedFor = waitpid(iPid, &status, 0);
    while (waitedFor < 0 && errno == EINTR);
    iPid = 0;
    Ending ending = waitedFor > 0 ? endingOf(status) : Ending();
    ending.lastWords = lastWords();
    return ending;
}

void ChildProcess::kill() const
{
    // One that was waited for by other code has lost its number, perhaps to a stranger.
    siginfo_t state{};
    if (waitid(P_PID, static_cast<id_t>(iPid), &state, WEXITED | WNOHANG | WNOWAIT) == 0)
        ::kill(-iPid, SIGKILL);
}

void ChildProcess::stop()
{
    const std::lock_guard lock(iMutex);
    iStopped = true;
    if (iPid != 0)
        kill();
}

bool ChildProcess::isStopped() const
{
    const std::lock_guard lock(iMutex);
    return iStopped;
}

QString ChildProcess::lastWords() const
{
    std::array<char, 500> bytes;
    const ssize_t size = read(iErrors.get(), bytes.data(), bytes.size());
    return size <= 0 ? QString()
                     : QString::fromLocal8Bit(bytes.data(), size).section(u'\n', 0, 0).simplified();
}

} // namespace leafcast
