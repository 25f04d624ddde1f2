// Starts each probe many times, alternating, and prints the medians of process start to first
// show. Usage: bench-startup-runner <runs> <norvale-probe> <minimal-probe>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

extern char** environ;

namespace {

double runOnce(const char* program)
{
    int fds[2];
    if (pipe(fds) != 0)
        return -1;
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    const std::string t0 = "NORVALE_BENCH_T0=" + std::to_string(static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec);
    std::vector<std::string> envStore;
    for (char** e = environ; *e; ++e)
        envStore.emplace_back(*e);
    envStore.push_back(t0);
    std::vector<char*> env;
    for (auto& s : envStore)
        env.push_back(s.data());
    env.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, fds[1], STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", 0, 0);
    pid_t pid = 0;
    char* argv[] = {const_cast<char*>(program), nullptr};
    const int rc = posix_spawn(&pid, program, &actions, nullptr, argv, env.data());
    posix_spawn_file_actions_destroy(&actions);
    close(fds[1]);
    if (rc != 0) {
        close(fds[0]);
        return -1;
    }
    char buf[64] = {};
    const ssize_t n = read(fds[0], buf, sizeof buf - 1);
    close(fds[0]);
    int status = 0;
    waitpid(pid, &status, 0);
    return n > 0 ? std::atof(buf) / 1e6 : -1;
}

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v.empty() ? 0 : v[v.size() / 2];
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc < 4) {
        std::fprintf(stderr, "usage: %s <runs> <norvale-probe> <minimal-probe>\n", argv[0]);
        return 2;
    }
    const int runs = std::max(1, std::atoi(argv[1]));
    runOnce(argv[2]); // warm the page cache for both
    runOnce(argv[3]);
    std::vector<double> norvale;
    std::vector<double> minimal;
    for (int i = 0; i < runs; ++i) {
        norvale.push_back(runOnce(argv[2]));
        minimal.push_back(runOnce(argv[3]));
    }
    const double n = median(norvale);
    const double m = median(minimal);
    std::printf("start-up to first show, median of %d runs (offscreen)\n", runs);
    std::printf("  Norvale main window : %8.1f ms\n", n);
    std::printf("  minimal Qt program  : %8.1f ms\n", m);
    std::printf("  ratio               : %8.2fx (goal: 1.50x or less)\n", m > 0 ? n / m : 0.0);
    return 0;
}
