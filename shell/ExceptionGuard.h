// Every entry point the host or the shell calls runs its body through
// GuardedStatus, so a C++ exception from a panel (or from the shell itself)
// becomes a status code and one line on standard error instead of
// unwinding into the host, which is not built to receive it.
#pragma once

#include "settings/Status.h"

#include <cstdio>
#include <exception>
#include <new>
#include <utility>

namespace orvan {

// Writes "orvan: <where> failed: <what>" to standard error.
inline void ReportUnexpectedFailure(const char* where, const char* what) noexcept
{
    std::fprintf(stderr, "orvan: %s failed: %s\n", where, what ? what : "unknown exception");
}

// Runs body (returning Status); an exception gives kMissingContext when
// memory ran out (the status the operations give for that) and
// kUnexpectedFailure otherwise.
template <class Body> Status GuardedStatus(const char* where, Body&& body) noexcept
{
    try {
        return std::forward<Body>(body)();
    } catch (const std::bad_alloc&) {
        ReportUnexpectedFailure(where, "out of memory");
        return kMissingContext;
    } catch (const std::exception& e) {
        ReportUnexpectedFailure(where, e.what());
        return kUnexpectedFailure;
    } catch (...) {
        ReportUnexpectedFailure(where, nullptr);
        return kUnexpectedFailure;
    }
}

// For entry points that return something other than a status: the fallback
// when the body throws.
template <class Result, class Body>
Result GuardedCall(const char* where, Result fallback, Body&& body) noexcept
{
    try {
        return std::forward<Body>(body)();
    } catch (const std::exception& e) {
        ReportUnexpectedFailure(where, e.what());
    } catch (...) {
        ReportUnexpectedFailure(where, nullptr);
    }
    return fallback;
}

} // namespace orvan
