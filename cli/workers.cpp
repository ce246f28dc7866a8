#include "workers.h"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

#include "command.h"

namespace quillet {
namespace {

struct Worker {
    pid_t process = -1;
    int results = -1;  // the reading end of its pipe
};

// A record is smaller than what a pipe takes or gives at once, so it never comes in pieces.
static_assert(sizeof(GameResult) <= 512);

[[noreturn]] void WorkAndExit(int first, int games, int step, int pipe,
                              const std::function<GameResult(int)>& play) {
    int status = 0;
    try {
        for (int index = first; index < games && status == 0; index += step) {
            const GameResult result = play(index);
            if (write(pipe, &result, sizeof result) != sizeof result) status = 1;
        }
    } catch (...) {
        status = 1;
    }
    _exit(status);
}

Worker StartWorker(int first, int games, int step, const std::function<GameResult(int)>& play) {
    int ends[2];
    if (pipe(ends) != 0) throw CommandFailed{"cannot start a worker"};
    const pid_t process = fork();
    if (process < 0) throw CommandFailed{"cannot start a worker"};
    if (process == 0) {
        close(ends[0]);
        WorkAndExit(first, games, step, ends[1], play);
    }
    close(ends[1]);
    return {process, ends[0]};
}

// Reads what the workers have ready until all have closed their pipes.
void CollectResults(std::vector<Worker>& workers, std::vector<GameResult>& results,
                    const std::function<void(int)>& progress) {
    std::vector<pollfd> pipes;
    for (const Worker& worker : workers) pipes.push_back({worker.results, POLLIN, 0});
    while (std::ranges::any_of(pipes, [](const pollfd& pipe) { return pipe.fd >= 0; })) {
        poll(pipes.data(), pipes.size(), -1);
        for (pollfd& pipe : pipes) {
            if (pipe.fd < 0 || pipe.revents == 0) continue;
            GameResult result;
            if (read(pipe.fd, &result, sizeof result) == sizeof result) {
                results.push_back(result);
                progress(static_cast<int>(results.size()));
            } else {
                close(pipe.fd);
                pipe.fd = -1;
            }
        }
    }
}

}  // namespace

std::vector<GameResult> PlayGames(int games, int jobs, const std::function<GameResult(int index)>& play,
                                  const std::function<void(int done)>& progress) {
    std::vector<GameResult> results;
    if (jobs <= 1) {
        for (int index = 0; index < games; ++index) {
            results.push_back(play(index));
            progress(index + 1);
        }
        return results;
    }
    std::fflush(stdout);
    std::vector<Worker> workers;
    for (int i = 0; i < jobs && i < games; ++i) workers.push_back(StartWorker(i, games, jobs, play));
    CollectResults(workers, results, progress);
    for (const Worker& worker : workers) waitpid(worker.process, nullptr, 0);
    if (results.size() != static_cast<std::size_t>(games)) throw CommandFailed{"a worker process failed"};
    std::ranges::sort(results, {}, &GameResult::index);
    return results;
}

}  // namespace quillet
