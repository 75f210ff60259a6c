// An owner for a C library's handle: std::unique_ptr whose deleter calls the
// library's release function, e.g.
//   using OwnedPPD = OwnedHandle<ppd_file_t, ppdClose>;
#pragma once

#include <memory>

namespace orvan {

template <auto Release> struct HandleReleaser
{
    template <class T> void operator()(T* handle) const noexcept
    {
        if (handle)
            Release(handle);
    }
};

template <class T, auto Release> using OwnedHandle = std::unique_ptr<T, HandleReleaser<Release>>;

} // namespace orvan
