// Operating-system version checks. The behaviour of the newest system is the
// only one this port has, so the version source answers "newest" unless a
// test sets another version.
#pragma once

#include <optional>

namespace orvan {

struct SystemVersion
{
    int major = 0;
    int minor = 0;
    int bugFix = 0;
};

// Sets the version the checks see (nullopt: the calls fail, and the checks
// use their documented defaults) and forgets the cached answers. For tests.
void SetSystemVersionForTesting(std::optional<SystemVersion> version);
void ResetSystemVersionForTesting();

// True on 10.4 and later (defaults 10.3 when the version cannot be read);
// computed once per process.
bool RunningOn104OrLater();
// True on 10.5 and later (defaults 10.4); computed once per process.
bool RunningOn105OrLater();

} // namespace orvan
