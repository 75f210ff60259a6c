// Reading and replacing whole files safely: reads are capped, so that a
// device or a huge file cannot exhaust memory, and writes replace a regular
// file atomically, keep private files private whatever the umask, write
// through to devices and pipes, follow symbolic links to the file they name,
// and clear the temporaries an interrupted earlier write left behind.
// Plain C++ and POSIX (no Qt), so that the command-line tools can use it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvan {

// Caps on what one read takes in. Property-list files (tickets, presets,
// preference and watermark files) hold settings and, for watermarks, a few
// subset font programs; font files hold whole fonts, large CJK ones included.
inline constexpr std::size_t kMaxPropertyListFileSize = std::size_t{32} << 20; // 32 MiB
inline constexpr std::size_t kMaxFontFileSize = std::size_t{64} << 20;         // 64 MiB

// What a failed read or write says; empty on success. The reason is a short
// phrase ("No such file or directory", "larger than 32 MiB").
using FileError = std::string;

// Reads the whole file at path ("-" is standard input) into bytes, or fails
// when it holds more than limit bytes (bytes is then left empty). A folder
// is refused. Bytes read from a device or pipe count against the cap as
// they arrive, so /dev/zero fails instead of growing without end.
FileError ReadWholeFile(const std::string& path, std::size_t limit,
                        std::vector<std::uint8_t>& bytes);

// Who may read a written file.
enum class FilePrivacy : std::uint8_t
{
    Default,   // a new file gets 0666 less the umask; a replaced one keeps its mode
    OwnerOnly, // always 0600: the file may hold a passcode
};

// Writes bytes to path ("-" is standard output):
// - a symbolic link is followed (through every link of a chain) and the file
//   it names is what gets written or created;
// - a character device or FIFO that exists is written through, as a shell
//   redirection would;
// - a folder, block device or socket is refused;
// - anything else is replaced atomically: a temporary file beside it named
//   ".<name>.orvan.<pid>.XXXXXX", synced, given its mode, renamed over it.
//   Temporaries of that naming whose process is gone are removed first.
FileError ReplaceFile(const std::string& path, std::string_view bytes, FilePrivacy privacy);

// Creates the folder and its missing parents; with FilePrivacy::OwnerOnly the
// folder itself (not its parents) is made 0700 even when it existed.
FileError MakeFolder(const std::string& path, FilePrivacy privacy);

// The reason for a failure with errno code.
FileError ErrorText(int code);

} // namespace orvan
