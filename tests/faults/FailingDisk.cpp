// SPDX-License-Identifier: MIT
// A library that a program is started with (LD_PRELOAD): calls that change what lies below one folder fail as
// on a disk that refuses them, or end the process in that moment. The environment says which:
//
//     FAILING_FOLDER  the folder
//     FAILING_WITH    the error, a number of errno; 0 = the process is killed instead, before the call
//     FAILING_CALLS   kinds of calls that count: c creates, o opens an existing file for writing, w writes,
//                     r renames and removes, p permissions, l lists
//     FAILING_AFTER   so many calls of these kinds are done before the first that fails; all later ones fail
//     FAILING_BYTES   so many bytes are written before writes count; unset = all count
//     FAILING_WHILE   a file: nothing counts unless it is there
//
// It knows the calls that this system's programs make through the C library. Calls within that library cannot
// be seen, so those of its own that write or make files are here as well.
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

constexpr char Creates = 'c';
constexpr char Opens = 'o';
constexpr char Writes = 'w';
constexpr char Renames = 'r';
constexpr char Permissions = 'p';
constexpr char Lists = 'l';

std::atomic<long long> CallsDone{0};
std::atomic<long long> BytesDone{0};

std::string_view Variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

long long Number(const char* name) { return std::atoll(std::string(Variable(name)).c_str()); }

template <typename Function>
Function* Next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}
#define NEXT(function) Next<decltype(function)>(#function)

std::string PathOf(int handle) {
    char path[4096];
    const ssize_t length =
        readlink(("/proc/self/fd/" + std::to_string(handle)).c_str(), path, sizeof path - 1);
    return length < 0 ? "" : std::string(path, static_cast<std::size_t>(length));
}

std::string PathAt(int folder, const char* path) {
    if (*path == '/' || folder == AT_FDCWD)
        return path;
    return PathOf(folder) + '/' + path;
}

bool LiesInFolder(std::string_view path) {
    const std::string_view folder = Variable("FAILING_FOLDER");
    return !folder.empty() && path.starts_with(folder) &&
           (path.size() == folder.size() || path[folder.size()] == '/');
}

// True, with errno set, when the call is one that fails.
bool Fails(char kind, const std::string& path, std::size_t bytes = 0) {
    if (Variable("FAILING_CALLS").find(kind) == std::string_view::npos || !LiesInFolder(path))
        return false;
    const std::string condition(Variable("FAILING_WHILE"));
    if (!condition.empty() && access(condition.c_str(), F_OK) != 0)
        return false;
    if (kind == Writes && !Variable("FAILING_BYTES").empty() &&
        (BytesDone += static_cast<long long>(bytes)) <= Number("FAILING_BYTES"))
        return false;
    if (CallsDone++ < Number("FAILING_AFTER"))
        return false;
    const int error = static_cast<int>(Number("FAILING_WITH"));
    if (error == 0)
        kill(getpid(), SIGKILL);
    errno = error;
    return true;
}

bool FailsToOpen(const std::string& path, int flags) {
    if (access(path.c_str(), F_OK) != 0)
        return (flags & O_CREAT) != 0 && Fails(Creates, path);
    return (flags & O_ACCMODE) != O_RDONLY && Fails(Opens, path);
}

// As fopen takes it.
int FlagsOf(const char* mode) {
    if (*mode == 'r')
        return std::strchr(mode, '+') == nullptr ? O_RDONLY : O_RDWR;
    return O_WRONLY | O_CREAT;
}

mode_t ModeOf(int flags, va_list arguments) {
    const bool takesMode = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
    return takesMode ? va_arg(arguments, mode_t) : 0;
}

} // namespace

extern "C" {

#define OPEN(name)                                                                                           \
    int name(const char* path, int flags, ...) {                                                             \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        const mode_t mode = ModeOf(flags, arguments);                                                        \
        va_end(arguments);                                                                                   \
        return FailsToOpen(path, flags) ? -1 : NEXT(name)(path, flags, mode);                                \
    }
OPEN(open)
OPEN(open64)

#define OPEN_AT(name)                                                                                        \
    int name(int folder, const char* path, int flags, ...) {                                                 \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        const mode_t mode = ModeOf(flags, arguments);                                                        \
        va_end(arguments);                                                                                   \
        return FailsToOpen(PathAt(folder, path), flags) ? -1 : NEXT(name)(folder, path, flags, mode);        \
    }
OPEN_AT(openat)
OPEN_AT(openat64)

FILE* fopen(const char* path, const char* mode) {
    return FailsToOpen(path, FlagsOf(mode)) ? nullptr : NEXT(fopen)(path, mode);
}
FILE* fopen64(const char* path, const char* mode) {
    return FailsToOpen(path, FlagsOf(mode)) ? nullptr : NEXT(fopen64)(path, mode);
}
int mkstemp(char* path) { return Fails(Creates, path) ? -1 : NEXT(mkstemp)(path); }
int mkostemp(char* path, int flags) { return Fails(Creates, path) ? -1 : NEXT(mkostemp)(path, flags); }
int mkstemp64(char* path) { return Fails(Creates, path) ? -1 : NEXT(mkstemp64)(path); }
char* mkdtemp(char* path) noexcept { return Fails(Creates, path) ? nullptr : NEXT(mkdtemp)(path); }
int mkdir(const char* path, mode_t mode) noexcept {
    return Fails(Creates, path) ? -1 : NEXT(mkdir)(path, mode);
}

ssize_t write(int handle, const void* data, size_t size) {
    return Fails(Writes, PathOf(handle), size) ? -1 : NEXT(write)(handle, data, size);
}
ssize_t writev(int handle, const iovec* parts, int count) {
    std::size_t size = 0;
    for (int i = 0; i < count; ++i)
        size += parts[i].iov_len;
    return Fails(Writes, PathOf(handle), size) ? -1 : NEXT(writev)(handle, parts, count);
}
size_t fwrite(const void* data, size_t size, size_t count, FILE* file) {
    return Fails(Writes, PathOf(fileno(file)), size * count) ? 0 : NEXT(fwrite)(data, size, count, file);
}
int fsync(int handle) { return Fails(Writes, PathOf(handle)) ? -1 : NEXT(fsync)(handle); }
int ftruncate(int handle, off_t size) noexcept {
    return Fails(Writes, PathOf(handle)) ? -1 : NEXT(ftruncate)(handle, size);
}
int fclose(FILE* file) {
    // What was buffered is lost with the failure; the file is closed all the same.
    const bool written = (fcntl(fileno(file), F_GETFL) & O_ACCMODE) != O_RDONLY;
    const bool fails = written && Fails(Writes, PathOf(fileno(file)));
    const int error = errno;
    const int closed = NEXT(fclose)(file);
    if (!fails)
        return closed;
    errno = error;
    return EOF;
}

int rename(const char* from, const char* to) noexcept {
    return Fails(Renames, to) ? -1 : NEXT(rename)(from, to);
}
int remove(const char* path) noexcept { return Fails(Renames, path) ? -1 : NEXT(remove)(path); }
int unlink(const char* path) noexcept { return Fails(Renames, path) ? -1 : NEXT(unlink)(path); }
int rmdir(const char* path) noexcept { return Fails(Renames, path) ? -1 : NEXT(rmdir)(path); }
int unlinkat(int folder, const char* path, int flags) noexcept {
    return Fails(Renames, PathAt(folder, path)) ? -1 : NEXT(unlinkat)(folder, path, flags);
}

int chmod(const char* path, mode_t mode) noexcept {
    return Fails(Permissions, path) ? -1 : NEXT(chmod)(path, mode);
}
int fchmod(int handle, mode_t mode) noexcept {
    return Fails(Permissions, PathOf(handle)) ? -1 : NEXT(fchmod)(handle, mode);
}
int fchmodat(int folder, const char* path, mode_t mode, int flags) noexcept {
    return Fails(Permissions, PathAt(folder, path)) ? -1 : NEXT(fchmodat)(folder, path, mode, flags);
}

dirent* readdir(DIR* folder) { return Fails(Lists, PathOf(dirfd(folder))) ? nullptr : NEXT(readdir)(folder); }

} // extern "C"
