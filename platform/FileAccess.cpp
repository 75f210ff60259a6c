#include "platform/FileAccess.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvan {

namespace {

// An open file descriptor, closed when its owner goes.
class FileDescriptor
{
public:
    explicit FileDescriptor(int fd = -1) : m_fd(fd) {}
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor()
    {
        if (m_fd > STDERR_FILENO)
            ::close(m_fd);
    }
    int get() const { return m_fd; }
    // Closes now, for callers that must see the result of close.
    int close()
    {
        const int fd = m_fd;
        m_fd = -1;
        return fd > STDERR_FILENO ? ::close(fd) : 0;
    }

private:
    int m_fd;
};

struct DirectoryCloser
{
    void operator()(DIR* dir) const { ::closedir(dir); }
};
using DirectoryPtr = std::unique_ptr<DIR, DirectoryCloser>;

struct StreamCloser
{
    void operator()(std::FILE* stream) const { std::fclose(stream); }
};
using StreamPtr = std::unique_ptr<std::FILE, StreamCloser>;

std::string sizeText(std::size_t bytes)
{
    return "larger than " + std::to_string(bytes >> 20) + " MiB";
}

FileError writeAll(int fd, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t put = ::write(fd, bytes.data(), bytes.size());
        if (put < 0 && errno == EINTR)
            continue;
        if (put < 0)
            return ErrorText(errno);
        bytes.remove_prefix(static_cast<std::size_t>(put));
    }
    return {};
}

std::string folderOf(const std::string& path)
{
    const auto slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string nameOf(const std::string& path)
{
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

// The path a chain of symbolic links ends at (the path itself when it is no
// link, or a link to a file that does not exist yet).
FileError resolveLinks(std::string path, std::string& resolved)
{
    for (int hops = 0; hops < 40; ++hops) {
        struct stat info
        {
        };
        if (::lstat(path.c_str(), &info) != 0 || !S_ISLNK(info.st_mode)) {
            resolved = path;
            return {};
        }
        std::string target(PATH_MAX, '\0');
        const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
        if (length < 0)
            return ErrorText(errno);
        target.resize(static_cast<std::size_t>(length));
        path = target.starts_with('/') ? target : folderOf(path) + '/' + target;
    }
    return ErrorText(ELOOP);
}

// Removes temporaries "<prefix><pid>.XXXXXX" in the folder whose process no
// longer runs; a live process may still be writing its own.
void removeStaleTemporaries(const std::string& folder, const std::string& prefix)
{
    DirectoryPtr dir(::opendir(folder.c_str()));
    if (!dir)
        return;
    while (const dirent* entry = ::readdir(dir.get())) {
        const std::string_view name = entry->d_name;
        if (!name.starts_with(prefix))
            continue;
        const std::string rest(name.substr(prefix.size()));
        char* end = nullptr;
        const long pid = std::strtol(rest.c_str(), &end, 10);
        if (pid <= 0 || end == rest.c_str() || *end != '.' || std::strlen(end) != 7)
            continue;
        if (::kill(static_cast<pid_t>(pid), 0) == 0 || errno != ESRCH)
            continue;
        ::unlinkat(::dirfd(dir.get()), entry->d_name, 0);
    }
}

// The process's umask. Read from /proc where it can be: setting it to read it
// would briefly change it for every thread.
mode_t umaskValue()
{
    if (const StreamPtr status{std::fopen("/proc/self/status", "re")}) {
        char line[256];
        unsigned mask = 0;
        bool found = false;
        while (!found && std::fgets(line, sizeof line, status.get()))
            found = std::sscanf(line, "Umask: %o", &mask) == 1;
        if (found)
            return static_cast<mode_t>(mask);
    }
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return mask;
}

FileError replaceRegularFile(const std::string& path, std::string_view bytes, FilePrivacy privacy,
                             const struct stat* existing)
{
    const std::string folder = folderOf(path);
    const std::string prefix = '.' + nameOf(path) + ".orvan.";
    removeStaleTemporaries(folder, prefix);
    std::string temporary = folder + '/' + prefix + std::to_string(::getpid()) + ".XXXXXX";
    FileDescriptor fd(::mkostemp(temporary.data(), O_CLOEXEC));
    if (fd.get() < 0)
        return ErrorText(errno);
    mode_t mode = 0600;
    if (privacy == FilePrivacy::Default)
        mode = existing ? (existing->st_mode & 07777) : (0666 & ~umaskValue());
    FileError error = writeAll(fd.get(), bytes);
    if (error.empty() && ::fchmod(fd.get(), mode) != 0)
        error = ErrorText(errno);
    if (error.empty() && ::fsync(fd.get()) != 0)
        error = ErrorText(errno);
    if (fd.close() != 0 && error.empty())
        error = ErrorText(errno);
    if (error.empty() && ::rename(temporary.c_str(), path.c_str()) != 0)
        error = ErrorText(errno);
    if (!error.empty())
        ::unlink(temporary.c_str());
    return error;
}

} // namespace

FileError ErrorText(int code)
{
    return std::strerror(code);
}

FileError ReadWholeFile(const std::string& path, std::size_t limit,
                        std::vector<std::uint8_t>& bytes)
{
    bytes.clear();
    const bool standardInput = path == "-";
    FileDescriptor fd(standardInput ? STDIN_FILENO : ::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (fd.get() < 0)
        return ErrorText(errno);
    struct stat info
    {
    };
    if (::fstat(fd.get(), &info) == 0) {
        if (S_ISDIR(info.st_mode))
            return ErrorText(EISDIR);
        if (S_ISREG(info.st_mode)) {
            if (static_cast<std::uint64_t>(info.st_size) > limit)
                return sizeText(limit);
            bytes.reserve(static_cast<std::size_t>(info.st_size));
        }
    }
    std::vector<std::uint8_t> chunk(65536);
    for (;;) {
        const ssize_t got = ::read(fd.get(), chunk.data(), chunk.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            const int code = errno;
            bytes.clear();
            return ErrorText(code);
        }
        if (got == 0)
            return {};
        if (bytes.size() + static_cast<std::size_t>(got) > limit) {
            bytes.clear();
            bytes.shrink_to_fit();
            return sizeText(limit);
        }
        bytes.insert(bytes.end(), chunk.data(), chunk.data() + got);
    }
}

FileError ReplaceFile(const std::string& path, std::string_view bytes, FilePrivacy privacy)
{
    if (path == "-")
        return writeAll(STDOUT_FILENO, bytes);
    if (path.empty())
        return ErrorText(ENOENT);
    std::string target;
    if (FileError error = resolveLinks(path, target); !error.empty())
        return error;
    struct stat info
    {
    };
    if (::stat(target.c_str(), &info) != 0) {
        if (errno != ENOENT)
            return ErrorText(errno);
        return replaceRegularFile(target, bytes, privacy, nullptr);
    }
    if (S_ISDIR(info.st_mode))
        return ErrorText(EISDIR);
    if (S_ISBLK(info.st_mode))
        return "a block device, which is not written to";
    if (S_ISSOCK(info.st_mode))
        return "a socket, which cannot be written as a file";
    if (S_ISCHR(info.st_mode) || S_ISFIFO(info.st_mode)) {
        FileDescriptor fd(::open(target.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY));
        if (fd.get() < 0)
            return ErrorText(errno);
        FileError error = writeAll(fd.get(), bytes);
        if (fd.close() != 0 && error.empty())
            error = ErrorText(errno);
        return error;
    }
    return replaceRegularFile(target, bytes, privacy, &info);
}

FileError MakeFolder(const std::string& path, FilePrivacy privacy)
{
    if (path.empty())
        return ErrorText(ENOENT);
    struct stat info
    {
    };
    if (::stat(path.c_str(), &info) != 0) {
        const std::string parent = folderOf(path);
        if (parent != path && parent != "." && parent != "/") {
            if (FileError error = MakeFolder(parent, FilePrivacy::Default); !error.empty())
                return error;
        }
        if (::mkdir(path.c_str(), privacy == FilePrivacy::OwnerOnly ? 0700 : 0777) != 0 &&
            errno != EEXIST)
            return ErrorText(errno);
        if (::stat(path.c_str(), &info) != 0)
            return ErrorText(errno);
    }
    if (!S_ISDIR(info.st_mode))
        return ErrorText(ENOTDIR);
    if (privacy == FilePrivacy::OwnerOnly && (info.st_mode & 077) != 0 &&
        ::chmod(path.c_str(), 0700) != 0)
        return ErrorText(errno);
    return {};
}

} // namespace orvan
