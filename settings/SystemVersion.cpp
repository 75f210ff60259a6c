#include "settings/SystemVersion.h"

namespace orvan {

namespace {

struct VersionState
{
    bool overridden = false;
    std::optional<SystemVersion> version;
    std::optional<bool> on104;
    std::optional<bool> on105;
};

VersionState& state()
{
    static VersionState s;
    return s;
}

std::optional<SystemVersion> currentVersion()
{
    if (state().overridden)
        return state().version;
    return SystemVersion{99, 0, 0}; // newest behaviour
}

bool atLeast(int minMinor, int defaultMinor)
{
    const std::optional<SystemVersion> v = currentVersion();
    const int major = v ? v->major : 10;
    const int minor = v ? v->minor : defaultMinor;
    return major > 10 || (major == 10 && minor > minMinor);
}

} // namespace

void SetSystemVersionForTesting(std::optional<SystemVersion> version)
{
    state() = VersionState{true, version, std::nullopt, std::nullopt};
}

void ResetSystemVersionForTesting()
{
    state() = VersionState{};
}

bool RunningOn104OrLater()
{
    if (!state().on104)
        state().on104 = atLeast(3, 3);
    return *state().on104;
}

bool RunningOn105OrLater()
{
    if (!state().on105)
        state().on105 = atLeast(4, 4);
    return *state().on105;
}

} // namespace orvan
