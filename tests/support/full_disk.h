// A disk without room, for tests of what is written.
#pragma once

#include <signal.h>
#include <sys/resource.h>

namespace quillet {

// While one lives, no file of this process can grow beyond that size: a disk that is full.
struct FullDisk {
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &old);
        oldHandler = signal(SIGXFSZ, SIG_IGN);
        const rlimit low{bytes, old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &low);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &old);
        signal(SIGXFSZ, oldHandler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

    rlimit old{};
    sighandler_t oldHandler = nullptr;
};

}  // namespace quillet
