// SPDX-License-Identifier: MIT
// A library that a program is started with (LD_PRELOAD): calls that change what lies below one folder fail as
// on a disk that refuses them, or end the process in that moment. The environment says which:
//
//     FAILING_FOLDER  the folder
//     FAILING_WITH    the error, a number of errno; 0 = the process is killed instead, before the call
//     FAILING_CALLS   kinds of calls that count: c creates, o opens an existing file for writing, w writes
//     and
//                     flushes, f flushes, r renames and removes, p permissions, l lists, k locks, n locks of
//                     files that are not open for writing
//     FAILING_AFTER   so many calls of these kinds are done before the first that fails; all later ones fail
//     FAILING_BYTES   so many bytes are written before writes count; unset = all count
//     FAILING_WHILE   a file: nothing counts unless it is there
//     FAILING_RECORD  a file elsewhere: each call that was done, whatever its kind, becomes a line in it: the
//                     kind (w without f), the permissions that the file has then, and its path, with TABs
//                     between; for a rename the old path behind it
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
#include <type_traits>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
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
constexpr char Flushes = 'f';
constexpr char Locks = 'k';
constexpr char LocksUnwritable = 'n';

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

void Record(char kind, const std::string& path, const std::string& from) {
    const std::string record(Variable("FAILING_RECORD"));
    if (record.empty() || !LiesInFolder(path))
        return;
    const int error = errno;
    struct stat status {};
    char mode[16] = "-";
    if (lstat(path.c_str(), &status) == 0)
        std::snprintf(mode, sizeof mode, "%04o", static_cast<unsigned>(status.st_mode & 07777U));
    const std::string line =
        std::string(1, kind) + '\t' + mode + '\t' + path + (from.empty() ? "" : '\t' + from) + '\n';
    const int file = NEXT(open)(record.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    if (file >= 0) {
        (void)!NEXT(write)(file, line.data(), line.size());
        close(file);
    }
    errno = error;
}

// Does a call that did not fail, and records it where it worked; 0 as the kind = it is none that counts.
template <typename Call>
auto Do(char kind, const std::string& path, Call call, const std::string& from = "") {
    const auto result = call();
    bool worked = false;
    if constexpr (std::is_pointer_v<std::remove_const_t<decltype(result)>>)
        worked = result != nullptr;
    else
        worked = static_cast<long long>(result) >= 0;
    if (kind != 0 && worked)
        Record(kind, path, from);
    return result;
}

// The kind that opening a file is of, 0 for none.
char KindOfOpening(const std::string& path, int flags) {
    if (access(path.c_str(), F_OK) != 0)
        return (flags & O_CREAT) != 0 ? Creates : '\0';
    return (flags & O_ACCMODE) != O_RDONLY ? Opens : '\0';
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
        const char kind = KindOfOpening(path, flags);                                                        \
        if (kind != 0 && Fails(kind, path))                                                                  \
            return -1;                                                                                       \
        return Do(kind, path, [&] { return NEXT(name)(path, flags, mode); });                                \
    }
OPEN(open)
OPEN(open64)

#define OPEN_AT(name)                                                                                        \
    int name(int folder, const char* path, int flags, ...) {                                                 \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        const mode_t mode = ModeOf(flags, arguments);                                                        \
        va_end(arguments);                                                                                   \
        const std::string whole = PathAt(folder, path);                                                      \
        const char kind = KindOfOpening(whole, flags);                                                       \
        if (kind != 0 && Fails(kind, whole))                                                                 \
            return -1;                                                                                       \
        return Do(kind, whole, [&] { return NEXT(name)(folder, path, flags, mode); });                       \
    }
OPEN_AT(openat)
OPEN_AT(openat64)

#define OPEN_STREAM(name)                                                                                    \
    FILE* name(const char* path, const char* mode) {                                                         \
        const char kind = KindOfOpening(path, FlagsOf(mode));                                                \
        if (kind != 0 && Fails(kind, path))                                                                  \
            return nullptr;                                                                                  \
        return Do(kind, path, [&] { return NEXT(name)(path, mode); });                                       \
    }
OPEN_STREAM(fopen)
OPEN_STREAM(fopen64)

int mkstemp(char* path) {
    if (Fails(Creates, path))
        return -1;
    const int handle = NEXT(mkstemp)(path);
    return Do(Creates, path, [&] { return handle; });
}
int mkostemp(char* path, int flags) {
    if (Fails(Creates, path))
        return -1;
    const int handle = NEXT(mkostemp)(path, flags);
    return Do(Creates, path, [&] { return handle; });
}
int mkstemp64(char* path) {
    if (Fails(Creates, path))
        return -1;
    const int handle = NEXT(mkstemp64)(path);
    return Do(Creates, path, [&] { return handle; });
}
char* mkdtemp(char* path) noexcept {
    if (Fails(Creates, path))
        return nullptr;
    char* const made = NEXT(mkdtemp)(path);
    return Do(Creates, path, [&] { return made; });
}
int mkdir(const char* path, mode_t mode) noexcept {
    return Fails(Creates, path) ? -1 : Do(Creates, path, [&] { return NEXT(mkdir)(path, mode); });
}

ssize_t write(int handle, const void* data, size_t size) {
    const std::string path = PathOf(handle);
    return Fails(Writes, path, size) ? -1 : Do(Writes, path, [&] { return NEXT(write)(handle, data, size); });
}
ssize_t pwrite(int handle, const void* data, size_t size, off_t place) {
    const std::string path = PathOf(handle);
    return Fails(Writes, path, size)
               ? -1
               : Do(Writes, path, [&] { return NEXT(pwrite)(handle, data, size, place); });
}
ssize_t pwrite64(int handle, const void* data, size_t size, off64_t place) {
    const std::string path = PathOf(handle);
    return Fails(Writes, path, size)
               ? -1
               : Do(Writes, path, [&] { return NEXT(pwrite64)(handle, data, size, place); });
}
ssize_t writev(int handle, const iovec* parts, int count) {
    std::size_t size = 0;
    for (int i = 0; i < count; ++i)
        size += parts[i].iov_len;
    const std::string path = PathOf(handle);
    return Fails(Writes, path, size) ? -1
                                     : Do(Writes, path, [&] { return NEXT(writev)(handle, parts, count); });
}
size_t fwrite(const void* data, size_t size, size_t count, FILE* file) {
    const std::string path = PathOf(fileno(file));
    return Fails(Writes, path, size * count)
               ? 0
               : Do(Writes, path, [&] { return NEXT(fwrite)(data, size, count, file); });
}
int fsync(int handle) {
    const std::string path = PathOf(handle);
    if (Fails(Flushes, path) || Fails(Writes, path))
        return -1;
    return Do(Flushes, path, [&] { return NEXT(fsync)(handle); });
}
int ftruncate(int handle, off_t size) noexcept {
    const std::string path = PathOf(handle);
    return Fails(Writes, path) ? -1 : Do(Writes, path, [&] { return NEXT(ftruncate)(handle, size); });
}
int fclose(FILE* file) {
    // What was buffered is lost with the failure; the file is closed all the same.
    const bool written = (fcntl(fileno(file), F_GETFL) & O_ACCMODE) != O_RDONLY;
    const std::string path = PathOf(fileno(file));
    const bool fails = written && Fails(Writes, path);
    const int error = errno;
    const int closed = Do(written && !fails ? Writes : '\0', path, [&] { return NEXT(fclose)(file); });
    if (!fails)
        return closed;
    errno = error;
    return EOF;
}

int rename(const char* from, const char* to) noexcept {
    return Fails(Renames, to) ? -1
                              : Do(
                                    Renames, to, [&] { return NEXT(rename)(from, to); }, from);
}
int remove(const char* path) noexcept {
    return Fails(Renames, path) ? -1 : Do(Renames, path, [&] { return NEXT(remove)(path); });
}
int unlink(const char* path) noexcept {
    return Fails(Renames, path) ? -1 : Do(Renames, path, [&] { return NEXT(unlink)(path); });
}
int rmdir(const char* path) noexcept {
    return Fails(Renames, path) ? -1 : Do(Renames, path, [&] { return NEXT(rmdir)(path); });
}
int unlinkat(int folder, const char* path, int flags) noexcept {
    const std::string whole = PathAt(folder, path);
    return Fails(Renames, whole) ? -1
                                 : Do(Renames, whole, [&] { return NEXT(unlinkat)(folder, path, flags); });
}

int chmod(const char* path, mode_t mode) noexcept {
    return Fails(Permissions, path) ? -1 : Do(Permissions, path, [&] { return NEXT(chmod)(path, mode); });
}
int fchmod(int handle, mode_t mode) noexcept {
    const std::string path = PathOf(handle);
    return Fails(Permissions, path) ? -1 : Do(Permissions, path, [&] { return NEXT(fchmod)(handle, mode); });
}
int fchmodat(int folder, const char* path, mode_t mode, int flags) noexcept {
    const std::string whole = PathAt(folder, path);
    return Fails(Permissions, whole)
               ? -1
               : Do(Permissions, whole, [&] { return NEXT(fchmodat)(folder, path, mode, flags); });
}

int flock(int handle, int operation) noexcept {
    const std::string path = PathOf(handle);
    const bool isWritable = (fcntl(handle, F_GETFL) & O_ACCMODE) != O_RDONLY;
    if (Fails(Locks, path) || (!isWritable && Fails(LocksUnwritable, path)))
        return -1;
    return Do(Locks, path, [&] { return NEXT(flock)(handle, operation); });
}

dirent* readdir(DIR* folder) { return Fails(Lists, PathOf(dirfd(folder))) ? nullptr : NEXT(readdir)(folder); }

} // extern "C"
