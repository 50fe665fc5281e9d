// Imitates a folder on a slow network: every call is delayed, and nothing is cached.
//
//     slowFolder DELAY_MS SOURCE MOUNTPOINT
//
// mounts SOURCE at MOUNTPOINT for reading until it is terminated or unmounted. It prints "ready" when the
// mount works. Between SIGUSR1 and SIGUSR2 calls are not answered.
#define FUSE_USE_VERSION 31
#include <fuse3/fuse.h>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>

namespace {

std::chrono::milliseconds delay;
std::string source;

std::atomic<int> holds = 0; // counted, since two signals sent together may arrive in either order

void wait()
{
    do
        std::this_thread::sleep_for(delay);
    while (holds > 0);
}

std::string real(const char* path) { return source + path; }
int result(int returned) { return returned < 0 ? -errno : returned; }

void* ready(fuse_conn_info*, fuse_config* config)
{
    config->attr_timeout = 0;
    config->entry_timeout = 0;
    config->negative_timeout = 0;
    std::puts("ready");
    std::fflush(stdout);
    return nullptr;
}

int tellAttributes(const char* path, struct stat* attributes, fuse_file_info*)
{
    wait();
    return result(lstat(real(path).c_str(), attributes));
}

int list(const char* path, void* buffer, fuse_fill_dir_t fill, off_t, fuse_file_info*, fuse_readdir_flags)
{
    wait();
    DIR* folder = opendir(real(path).c_str());
    if (folder == nullptr)
        return -errno;
    while (const dirent* entry = readdir(folder)) {
        struct stat kind = {}; // like a server's, the listing distinguishes folders from files
        kind.st_mode = DTTOIF(entry->d_type);
        fill(buffer, entry->d_name, &kind, 0, fuse_fill_dir_flags(0));
    }
    closedir(folder);
    return 0;
}

int openFile(const char* path, fuse_file_info* file)
{
    wait();
    const int handle = open(real(path).c_str(), file->flags);
    file->fh = std::uint64_t(handle);
    return handle < 0 ? -errno : 0;
}

int readFile(const char*, char* buffer, size_t size, off_t offset, fuse_file_info* file)
{
    wait();
    return result(int(pread(int(file->fh), buffer, size, offset)));
}

int closeFile(const char*, fuse_file_info* file)
{
    wait();
    return result(close(int(file->fh)));
}

fuse_operations operations()
{
    fuse_operations all = {};
    all.init = ready;
    all.getattr = tellAttributes;
    all.readdir = list;
    all.open = openFile;
    all.read = readFile;
    all.release = closeFile;
    return all;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fputs("usage: slowFolder DELAY_MS SOURCE MOUNTPOINT\n", stderr);
        return 2;
    }
    delay = std::chrono::milliseconds(std::atoi(argv[1]));
    source = argv[2];
    std::signal(SIGUSR1, [](int) { ++holds; });
    std::signal(SIGUSR2, [](int) { --holds; });
    char foreground[] = "-f";
    char* arguments[] = {argv[0], argv[3], foreground, nullptr};
    const fuse_operations calls = operations();
    return fuse_main(3, arguments, &calls, nullptr);
}
