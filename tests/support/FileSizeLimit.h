// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>
#include <sys/resource.h>

namespace leafcast {

/// Lets no file grow beyond a size, as on a full disk, while it lives.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &iFormer);
        const rlimit limit{ bytes, iFormer.rlim_max };
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &iFormer);
        std::signal(SIGXFSZ, iFormerHandler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    sighandler_t iFormerHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit iFormer{};
};

} // namespace leafcast
