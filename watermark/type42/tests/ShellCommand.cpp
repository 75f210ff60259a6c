#include "ShellCommand.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/wait.h>

namespace orvan::test {

namespace {

std::string slurp(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

} // namespace

CommandResult runCommand(const std::string& command)
{
    TemporaryDirectory capture;
    CommandResult result;
    if (!capture.valid())
        return result;
    const std::string out = capture.path() + "/out";
    const std::string err = capture.path() + "/err";
    const int raw = std::system(("(" + command + ") >" + out + " 2>" + err).c_str());
    if (raw != -1 && WIFEXITED(raw))
        result.status = WEXITSTATUS(raw);
    result.output = slurp(out);
    result.error = slurp(err);
    return result;
}

bool commandExists(const std::string& name)
{
    return runCommand("command -v " + name).status == 0;
}

TemporaryDirectory::TemporaryDirectory()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "orvan-type42-XXXXXX").string();
    if (::mkdtemp(pattern.data()) != nullptr)
        path_ = pattern;
}

TemporaryDirectory::~TemporaryDirectory()
{
    if (valid()) {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
}

} // namespace orvan::test
