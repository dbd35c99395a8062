#pragma once

#include <csignal>
#include <sys/resource.h>

// While it exists, this process and the programs it starts cannot make a file larger than
// `bytes`: a longer write stops short with EFBIG, as on a full disk. SIGXFSZ, which would
// otherwise end the writing process, is ignored meanwhile (an ignored signal stays ignored in
// started programs).
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes) : previousHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &previous);
        rlimit lowered = previous;
        lowered.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &lowered);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &previous);
        std::signal(SIGXFSZ, previousHandler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    void (*previousHandler)(int);
    rlimit previous{};
};
