// A folder behind a slow network: every call to it takes a while, and nothing is cached.
//
//     slowFolder DELAY_MS SOURCE MOUNTPOINT
//
// shows SOURCE at MOUNTPOINT, reading and writing, until it is told to stop or the mount is taken away. It
// says "ready" when calls are answered.
#define FUSE_USE_VERSION 31
#include <fuse3/fuse.h>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>

namespace {

std::chrono::milliseconds delay;
std::string source;

void wait() { std::this_thread::sleep_for(delay); }
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
        struct stat kind = {}; // as servers do, a listing tells folders from files
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

int createFile(const char* path, mode_t mode, fuse_file_info* file)
{
    wait();
    const int handle = open(real(path).c_str(), file->flags | O_CREAT, mode);
    file->fh = std::uint64_t(handle);
    return handle < 0 ? -errno : 0;
}

int readFile(const char*, char* buffer, size_t size, off_t offset, fuse_file_info* file)
{
    wait();
    return result(int(pread(int(file->fh), buffer, size, offset)));
}

int writeFile(const char*, const char* buffer, size_t size, off_t offset, fuse_file_info* file)
{
    wait();
    return result(int(pwrite(int(file->fh), buffer, size, offset)));
}

int syncFile(const char*, int, fuse_file_info* file)
{
    wait();
    return result(fsync(int(file->fh)));
}

int closeFile(const char*, fuse_file_info* file)
{
    wait();
    return result(close(int(file->fh)));
}

int resize(const char* path, off_t size, fuse_file_info*)
{
    wait();
    return result(truncate(real(path).c_str(), size));
}

int removeFile(const char* path)
{
    wait();
    return result(unlink(real(path).c_str()));
}

int makeFolder(const char* path, mode_t mode)
{
    wait();
    return result(mkdir(real(path).c_str(), mode));
}

int removeFolder(const char* path)
{
    wait();
    return result(rmdir(real(path).c_str()));
}

int renameEntry(const char* from, const char* to, unsigned flags)
{
    wait();
    return result(renameat2(AT_FDCWD, real(from).c_str(), AT_FDCWD, real(to).c_str(), flags));
}

int changeMode(const char* path, mode_t mode, fuse_file_info*)
{
    wait();
    return result(chmod(real(path).c_str(), mode));
}

int changeTimes(const char* path, const timespec times[2], fuse_file_info*)
{
    wait();
    return result(utimensat(AT_FDCWD, real(path).c_str(), times, AT_SYMLINK_NOFOLLOW));
}

int tellSpace(const char* path, struct statvfs* space)
{
    wait();
    return result(statvfs(real(path).c_str(), space));
}

fuse_operations operations()
{
    fuse_operations all = {};
    all.init = ready;
    all.getattr = tellAttributes;
    all.readdir = list;
    all.open = openFile;
    all.create = createFile;
    all.read = readFile;
    all.write = writeFile;
    all.fsync = syncFile;
    all.release = closeFile;
    all.truncate = resize;
    all.unlink = removeFile;
    all.mkdir = makeFolder;
    all.rmdir = removeFolder;
    all.rename = renameEntry;
    all.chmod = changeMode;
    all.utimens = changeTimes;
    all.statfs = tellSpace;
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
    char foreground[] = "-f";
    char* arguments[] = {argv[0], argv[3], foreground, nullptr};
    const fuse_operations calls = operations();
    return fuse_main(3, arguments, &calls, nullptr);
}
