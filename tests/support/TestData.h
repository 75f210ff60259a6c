// What many test programs share: readable QStrings in failure messages, the
// sample printer's PPD and the plug-in folder of the build tree.
#pragma once

#include "settings/Bundle.h"

#include <QString>

#include <ostream>

inline void PrintTo(const QString& text, std::ostream* os)
{
    *os << '"' << text.toStdString() << '"';
}

namespace orvan::testing {

inline const QString kSamplePpd = ORVAN_SOURCE_DIR "/resources/bundle/ppd/Orvan-Meridian-5000.ppd";

// The plug-in folder of the build tree, with its string tables and pictures.
inline const Bundle& PluginBundle()
{
    static const Bundle bundle(QStringLiteral(ORVAN_PLUGIN_DIR));
    return bundle;
}

} // namespace orvan::testing
