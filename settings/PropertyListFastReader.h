// The reader's fast path: the common form of a property list (UTF-8, no
// comments or instructions after the prolog, no CDATA, no internal DTD
// subset) parsed straight from the bytes. It never accepts a document the
// full reader would refuse: anything unusual or broken answers nullopt and
// the caller falls back to the full reader, which also says what and where.
#pragma once

#include "settings/PropertyValue.h"

#include <QByteArrayView>

#include <optional>

namespace orvan::plist {

std::optional<PropertyValue> readFast(QByteArrayView xml);

} // namespace orvan::plist
