// Fitting a job to what an IPP printer says it supports: before a job is sent
// to a printer directly, every job attribute is checked against the printer's
// "<name>-supported" value, and what the printer does not support is left out
// with a one-line notice instead of being sent blind.
#pragma once

#include <cups/ipp.h>

#include <QStringList>

namespace orvan::submission {

// Removes from the job's attributes (operation attributes other than
// job-name included) what the printer's description does not support:
//   - an attribute without "<name>-supported" unless the printer lists it in
//     "job-creation-attributes-supported";
//   - an attribute whose "-supported" is the boolean false;
//   - values not among the keywords, enums or resolutions listed, integers
//     outside the ranges, strings longer than an integer limit (passcodes);
//   - members of a collection not listed as its supported members, and member
//     values not among their own "-supported" values.
// The notices name the attribute and the value, never a passcode's value.
QStringList DropUnsupported(ipp_t* job, ipp_t* printer);

} // namespace orvan::submission
