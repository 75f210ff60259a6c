// Owners for the C handles of the drawing and font libraries. Each handle is
// released by its library's own release call, exactly once, when its owner
// goes; a null handle is never passed to a release call.
#pragma once

#include <cairo.h>

#include <memory>

namespace orvan {

template <auto Release> struct HandleRelease
{
    template <typename T> void operator()(T* handle) const { Release(handle); }
};

using CairoContext = std::unique_ptr<cairo_t, HandleRelease<cairo_destroy>>;
using CairoSurface = std::unique_ptr<cairo_surface_t, HandleRelease<cairo_surface_destroy>>;
using CairoFontFace = std::unique_ptr<cairo_font_face_t, HandleRelease<cairo_font_face_destroy>>;

} // namespace orvan
