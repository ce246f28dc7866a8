#include "progress.h"

#include <unistd.h>

#include <cstdio>
#include <utility>

namespace quillet {

Progress::Progress(bool wanted, int all, std::string what)
    : isShown(wanted && isatty(STDERR_FILENO) != 0), total(all), things(std::move(what)) {}

void Progress::Show(int done) const {
    if (!isShown) return;
    constexpr int kWidth = 40;
    const auto filled = static_cast<std::size_t>(done * kWidth / total);
    std::fprintf(stderr, "\r[%s%s] %d of %d %s%s", std::string(filled, '#').c_str(),
                 std::string(kWidth - filled, '.').c_str(), done, total, things.c_str(),
                 done == total ? "\n" : "");
}

}  // namespace quillet
