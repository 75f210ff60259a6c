// Running programs from the tests, and scratch folders for them.
#pragma once

#include <string>

namespace orvan::test {

struct CommandResult
{
    int status = -1; // exit status, or -1 when the command did not exit normally
    std::string output;
    std::string error;
};

// Runs `command` with /bin/sh, capturing standard output and error.
CommandResult runCommand(const std::string& command);

bool commandExists(const std::string& name);

// A fresh folder under the system's temporary folder, removed with its
// contents on destruction.
class TemporaryDirectory
{
public:
    TemporaryDirectory();
    ~TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    bool valid() const { return !path_.empty(); }
    const std::string& path() const { return path_; }

private:
    std::string path_;
};

} // namespace orvan::test
