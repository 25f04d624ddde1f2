// Times the category scan's folder walk and GNU du on the same tree, alternating the two so that
// both see the same warm cache, and checks that they count the same bytes.
//
//   bench_cleanup_scan <tree-folder> [runs]
//
// The tree (200,000 files in nested folders) is generated on first use and kept for later runs.
// Files are sized with ftruncate: the walk reads only metadata, so their blocks never matter.

#include "platform/sandbox/sandboxfilesystem.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr int TopFolders = 20;
constexpr int MiddleFolders = 10;
constexpr int LeafFolders = 10;
constexpr int FilesPerLeaf = 100; // 20 x 10 x 10 x 100 = 200,000 files
constexpr const char* DoneMarker = ".generated";

using Clock = std::chrono::steady_clock;

void generate(const fs::path& root)
{
    if (fs::exists(root / DoneMarker))
        return;
    fs::remove_all(root);
    std::mt19937 random(42);
    std::uniform_int_distribution<int> size(0, 256 * 1024);
    for (int t = 0; t < TopFolders; ++t) {
        for (int m = 0; m < MiddleFolders; ++m) {
            for (int l = 0; l < LeafFolders; ++l) {
                const fs::path leaf
                    = root / ("top" + std::to_string(t)) / ("mid" + std::to_string(m)) / ("leaf" + std::to_string(l));
                fs::create_directories(leaf);
                for (int f = 0; f < FilesPerLeaf; ++f) {
                    const std::string file = (leaf / ("f" + std::to_string(f) + ".tmp")).string();
                    const int fd = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
                    if (fd < 0 || ::ftruncate(fd, size(random)) != 0) {
                        std::perror(file.c_str());
                        std::exit(1);
                    }
                    ::close(fd);
                }
            }
        }
    }
    ::close(::open((root / DoneMarker).c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644));
}

// du's figure for the tree, or -1; its output goes through a pipe.
long long runDu(const fs::path& root)
{
    int pipeFds[2];
    if (::pipe(pipeFds) != 0)
        return -1;
    const pid_t pid = ::fork();
    if (pid == 0) {
        ::dup2(pipeFds[1], STDOUT_FILENO);
        ::close(pipeFds[0]);
        ::close(pipeFds[1]);
        ::execlp("du", "du", "-s", "--apparent-size", "--block-size=1", root.c_str(), static_cast<char*>(nullptr));
        ::_exit(127);
    }
    ::close(pipeFds[1]);
    std::string out;
    char buffer[256];
    ssize_t n;
    while ((n = ::read(pipeFds[0], buffer, sizeof buffer)) > 0)
        out.append(buffer, static_cast<std::size_t>(n));
    ::close(pipeFds[0]);
    int status = 0;
    ::waitpid(pid, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return -1;
    return std::atoll(out.c_str());
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

double msSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s <tree-folder> [runs]\n", argv[0]);
        return 2;
    }
    const fs::path root = fs::absolute(argv[1]);
    const int runs = argc > 2 ? std::max(1, std::atoi(argv[2])) : 9;
    generate(root);
    const fs::path tree = fs::canonical(root);

    platform::SandboxFileSystem fileSystem(tree.parent_path().wstring());
    const std::wstring folder = tree.wstring();

    // Warm the cache for both.
    long long walkBytes = fileSystem.folderSize(folder);
    long long duBytes = runDu(tree);
    if (duBytes < 0) {
        std::fprintf(stderr, "du failed\n");
        return 1;
    }

    std::vector<double> walkMs, duMs;
    for (int i = 0; i < runs; ++i) {
        auto start = Clock::now();
        walkBytes = fileSystem.folderSize(folder);
        walkMs.push_back(msSince(start));
        start = Clock::now();
        duBytes = runDu(tree);
        duMs.push_back(msSince(start));
    }

    // du also counts every folder's own size; the walk counts files only.
    long long folderBytes = 0;
    long long files = 0;
    struct stat st;
    if (::lstat(tree.c_str(), &st) == 0)
        folderBytes += st.st_size;
    for (const auto& entry : fs::recursive_directory_iterator(tree)) {
        if (!entry.is_directory()) {
            ++files;
        } else if (::lstat(entry.path().c_str(), &st) == 0) {
            folderBytes += st.st_size;
        }
    }

    const double walk = median(walkMs);
    const double du = median(duMs);
    std::printf("tree            %s (%lld files)\n", tree.c_str(), files);
    std::printf("runs            %d, warm cache\n", runs);
    std::printf("scan walk       median %.1f ms, %lld bytes\n", walk, walkBytes);
    std::printf("du              median %.1f ms, %lld bytes\n", du, duBytes);
    std::printf("ratio           %.2f (walk / du; goal <= 1.25)\n", walk / du);
    std::printf("bytes check     du - walk = %lld, folder sizes = %lld: %s\n", duBytes - walkBytes, folderBytes,
        duBytes - walkBytes == folderBytes ? "same file bytes" : "MISMATCH");
    return duBytes - walkBytes == folderBytes ? 0 : 1;
}
