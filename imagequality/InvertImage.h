// Negative and mirror image: two flags that travel in the print-settings
// ticket as the dictionary "com.orvan.print.InvertImageOptions".
#pragma once

#include "settings/PropertyValue.h"
#include "settings/Status.h"

#include <QString>

namespace orvan {

class Ticket;

inline const QString kInvertImageOptionsKey = QStringLiteral("com.orvan.print.InvertImageOptions");
inline const QString kNegativeImageKey = QStringLiteral("NegativeImage");
inline const QString kMirrorImageKey = QStringLiteral("MirrorImage");

// The invert-image options, fields in the order the panel has always kept
// them.
struct II_Options
{
    bool loaded = true;
    bool negativeImage = false;
    bool mirrorImage = false;

    friend bool operator==(const II_Options&, const II_Options&) = default;
};

// Which of the panel's invert-image controls exist. A headless panel has
// none.
struct InvertImageControls
{
    bool negativeImage = false;
    bool mirrorImage = false;
};

// Loaded, neither negative nor mirror.
void InvertImageInitialize(II_Options* options);

// Reads the ticket's dictionary, which may be absent. The two keys are read
// with different tests on purpose: "NegativeImage" counts only when above 0,
// "MirrorImage" whenever it is not 0, so -1 turns mirror on but not negative.
// A key that is absent or not a whole number reads as false. Sets loaded.
void InvertImageSetOptionsFromTicket(II_Options* options, const Ticket& ticket);

// The ticket dictionary: "NegativeImage" and "MirrorImage" as ticket
// integers 1 or 0.
PropertyValue InvertImageCreateTicketFromOptions(const II_Options& options);

// direction true: the options from the ticket. direction false: each flag
// whose control exists is set to true, whatever the control shows (the rule
// this panel has always written by, kept on purpose: a panel with its
// controls writes both as 1); a flag without its control keeps the value
// read from the ticket, so a headless run writes back what it read. Then the
// dictionary replaces the ticket's item (client "Q", unlocked). Returns the
// ticket's status of the write.
Status InvertImageSync(II_Options* options, Ticket* ticket, bool direction,
                       InvertImageControls controls);

} // namespace orvan
