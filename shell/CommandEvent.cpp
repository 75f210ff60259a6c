#include "shell/CommandEvent.h"

namespace orvan {

QEvent::Type CommandEvent::eventType()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

} // namespace orvan
