#include "cli/StandardOutput.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace
{

// Writes `text` to `out` and flushes it. Returns 0, or the error number of the failure.
int writeAndFlush(std::FILE* out, const std::string& text)
{
    errno = 0;
    const bool written = std::fwrite(text.data(), 1, text.size(), out) == text.size();
    if (!written || std::fflush(out) != 0 || std::ferror(out)) {
        return errno != 0 ? errno : EIO;
    }
    return 0;
}

} // namespace

void prepareStandardStreams()
{
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(descriptor, F_GETFD) != -1 || errno != EBADF) {
            continue;
        }
        // The lowest free descriptor is the closed one: the lower ones are open by now.
        const int taken = ::open("/dev/null", O_RDONLY);
        if (taken >= 0 && taken != descriptor) {
            ::dup2(taken, descriptor);
            ::close(taken);
        }
    }
    std::signal(SIGPIPE, SIG_IGN);
}

int writeOutput(const CliStreams& streams, const std::string& text, const std::string& who)
{
    if (const int failure = writeAndFlush(streams.out, text)) {
        std::fprintf(streams.err, "%s: cannot write standard output: %s\n", who.c_str(),
                     std::strerror(failure));
        return ExitFileError;
    }
    return ExitSuccess;
}
