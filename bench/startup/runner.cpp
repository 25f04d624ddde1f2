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

struct Sample {
    double shownMs = -1;
    double frameMs = -1;
};

Sample runOnce(const char* program)
{
    int fds[2];
    if (pipe(fds) != 0)
        return {};
    timespec now {};
    clock_gettime(CLOCK_REALTIME, &now);
    const std::string t0
        = "NORVALE_BENCH_T0=" + std::to_string(static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec);
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
    char* argv[] = { const_cast<char*>(program), nullptr };
    const int rc = posix_spawn(&pid, program, &actions, nullptr, argv, env.data());
    posix_spawn_file_actions_destroy(&actions);
    close(fds[1]);
    if (rc != 0) {
        close(fds[0]);
        return {};
    }
    char buf[64] = {};
    const ssize_t n = read(fds[0], buf, sizeof buf - 1);
    close(fds[0]);
    int status = 0;
    waitpid(pid, &status, 0);
    Sample sample;
    long long shown = 0;
    long long frame = 0;
    if (n > 0 && std::sscanf(buf, "%lld %lld", &shown, &frame) == 2) {
        sample.shownMs = shown / 1e6;
        sample.frameMs = frame / 1e6;
    }
    return sample;
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
    std::vector<double> norvaleShown, norvaleFrame, minimalShown, minimalFrame;
    for (int i = 0; i < runs; ++i) {
        const Sample n = runOnce(argv[2]);
        const Sample m = runOnce(argv[3]);
        norvaleShown.push_back(n.shownMs);
        norvaleFrame.push_back(n.frameMs);
        minimalShown.push_back(m.shownMs);
        minimalFrame.push_back(m.frameMs);
    }
    const double ns = median(norvaleShown), nf = median(norvaleFrame);
    const double ms = median(minimalShown), mf = median(minimalFrame);
    const char* where = std::getenv("NORVALE_BENCH_WHERE");
    std::printf("process start to the main window, median of %d runs (%s)\n", runs, where ? where : "offscreen");
    std::printf("                        show event   first frame\n");
    std::printf("  Norvale main window : %8.1f ms   %8.1f ms\n", ns, nf);
    std::printf("  minimal Qt program  : %8.1f ms   %8.1f ms\n", ms, mf);
    std::printf("  ratio               : %8.2fx     %8.2fx   (goal: 1.50x or less)\n", ms > 0 ? ns / ms : 0.0,
        mf > 0 ? nf / mf : 0.0);
    return 0;
}
