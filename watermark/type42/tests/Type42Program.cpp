#include "Type42Program.h"

#include "watermark/type42/Type42Converter.h"

#include <fstream>
#include <iterator>
#include <sstream>

namespace orvan::test {

std::string convertQuietly(const Bytes& font, std::string_view name)
{
    std::string out;
    convertTTFtoPS42(font, name, out, Type42Diagnostics::Silent);
    return out;
}

std::string_view sfntsText(std::string_view program)
{
    const std::size_t start = program.find("/sfnts [\n");
    if (start == std::string_view::npos)
        return {};
    const std::size_t end = program.find("/CharStrings", start);
    return program.substr(start, end == std::string_view::npos ? end : end - start);
}

namespace {

int digitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1; // lower case is not what the writer produces
}

} // namespace

std::optional<std::vector<Bytes>> sfntsStrings(std::string_view program)
{
    std::string_view text = sfntsText(program);
    std::vector<Bytes> strings;
    std::size_t at = 0;
    while ((at = text.find('<', at)) != std::string_view::npos) {
        const std::size_t close = text.find('>', at);
        if (close == std::string_view::npos)
            return std::nullopt;
        std::string digits;
        for (std::size_t i = at + 1; i < close; ++i) {
            if (text[i] != '\n')
                digits += text[i];
        }
        if (digits.size() % 2 != 0 || digits.size() < 2 || digits.substr(digits.size() - 2) != "00")
            return std::nullopt;
        Bytes bytes;
        for (std::size_t i = 0; i + 2 < digits.size(); i += 2) {
            const int high = digitValue(digits[i]);
            const int low = digitValue(digits[i + 1]);
            if (high < 0 || low < 0)
                return std::nullopt;
            bytes.push_back(static_cast<std::uint8_t>(high * 16 + low));
        }
        strings.push_back(std::move(bytes));
        at = close + 1;
    }
    return strings;
}

std::map<int, std::string> encodingOf(std::string_view program)
{
    std::map<int, std::string> encoding;
    std::istringstream lines{std::string(program)};
    std::string line;
    while (std::getline(lines, line)) {
        if (line.rfind("dup ", 0) != 0)
            continue;
        std::istringstream words(line);
        std::string dup, name, put;
        int code = -1;
        words >> dup >> code >> name >> put;
        if (put == "put" && name.size() > 0 && name[0] == '/')
            encoding[code] = name.substr(1);
    }
    return encoding;
}

std::vector<std::pair<std::string, int>> charStringsOf(std::string_view program)
{
    std::vector<std::pair<std::string, int>> entries;
    const std::size_t start = program.find("/CharStrings");
    if (start == std::string_view::npos)
        return entries;
    std::istringstream lines{std::string(program.substr(start))};
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line) && line != "end readonly def") {
        std::istringstream words(line);
        std::string name, def;
        int glyph = -1;
        words >> name >> glyph >> def;
        entries.emplace_back(name.substr(1), glyph);
    }
    return entries;
}

Bytes readFileBytes(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

} // namespace orvan::test
