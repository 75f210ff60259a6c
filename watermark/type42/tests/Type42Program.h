// Reads back the parts of a Type 42 program that the tests check.
#pragma once

#include "SfntBuilder.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvan::test {

// The program of `font` under `name`, with diagnostics silenced.
std::string convertQuietly(const Bytes& font, std::string_view name = "TestFont");

// The sfnts strings decoded, each without its padding byte; none when a
// string is malformed (bad digit, odd digit count, missing "00>" padding).
std::optional<std::vector<Bytes>> sfntsStrings(std::string_view program);

// The "dup CODE /NAME put" lines by code.
std::map<int, std::string> encodingOf(std::string_view program);

// The "/NAME GLYPH def" lines between "/CharStrings" and its end, in order.
std::vector<std::pair<std::string, int>> charStringsOf(std::string_view program);

// Text from the start of the sfnts array up to (not including) "/CharStrings".
std::string_view sfntsText(std::string_view program);

Bytes readFileBytes(const std::string& path);

} // namespace orvan::test
