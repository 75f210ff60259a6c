// Owners of the CUPS library's handles: every ipp_t, http_t, cups_dest_t and
// option array this system makes is released by one of these.
#pragma once

#include <cups/cups.h>

#include <memory>

namespace orvan::submission {

struct IppDeleter
{
    void operator()(ipp_t* ipp) const { ippDelete(ipp); }
};
using IppPtr = std::unique_ptr<ipp_t, IppDeleter>;

struct HttpDeleter
{
    void operator()(http_t* http) const { httpClose(http); }
};
using HttpPtr = std::unique_ptr<http_t, HttpDeleter>;

// An array of destinations knows its own length only through the count that
// came with it.
struct DestsDeleter
{
    int count = 1;
    void operator()(cups_dest_t* dests) const { cupsFreeDests(count, dests); }
};
using DestsPtr = std::unique_ptr<cups_dest_t, DestsDeleter>;

// Options grow by reallocation: the owner holds the pointer and the count
// together, and cupsAddOption goes through it.
class CupsOptions
{
public:
    CupsOptions() = default;
    CupsOptions(const CupsOptions&) = delete;
    CupsOptions& operator=(const CupsOptions&) = delete;
    ~CupsOptions() { cupsFreeOptions(m_count, m_options); }

    void add(const char* name, const char* value)
    {
        m_count = cupsAddOption(name, value, m_count, &m_options);
    }
    int count() const { return m_count; }
    cups_option_t* options() const { return m_options; }

private:
    int m_count = 0;
    cups_option_t* m_options = nullptr;
};

} // namespace orvan::submission
