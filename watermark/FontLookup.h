// Finding an installed font by its PostScript name (fontconfig).
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace orvan {

struct FontLocation
{
    QString file;
    int index = 0; // face index inside the file
};

// The font whose PostScript name is `postScriptName`; else, for the names of
// common printer and office fonts, the installed metric-compatible family in
// the same style (ArialMT draws with Liberation Sans); else the family of
// that name in its regular style. None when no step finds an installed font.
std::optional<FontLocation> FindFontByPostScriptName(const QString& postScriptName);

// An installed font as a font dialog lists it.
struct InstalledFont
{
    QString postScriptName;
    QString family;
    QString style;
};

// Every installed scalable font that has a PostScript name, each name once,
// sorted by PostScript name (case-insensitive).
std::vector<InstalledFont> InstalledFonts();

} // namespace orvan
