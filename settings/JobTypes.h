// The job types a ticket's job-type dictionary carries ("JobType"): what the
// Paper/Output panel offers, what the shell's OK guard checks and what the
// submission sends.
#pragma once

#include <cstdint>

namespace orvan {

// `_JobTypeMap` values, and the two the map does not offer.
enum JobTypeValue : std::int32_t
{
    kJobTypeNormal = 1,
    kJobTypeHold = 2,
    kJobTypeSavedJob = 3,
    kJobTypeSetupOnly = 4, // enables the setup button, opens nothing
    kJobTypeLANFax = 5,
    kJobTypeSecure = 6,
    kJobTypeDelayed = 7,
    kJobTypeSampleSet = 8,
    kJobTypeBackgroundForm = 9,
};

} // namespace orvan
