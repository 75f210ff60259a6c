#include "imagequality/InvertImage.h"

#include "settings/DictionaryAccess.h"
#include "settings/Ticket.h"

namespace orvan {

void InvertImageInitialize(II_Options* options)
{
    if (options)
        *options = II_Options{true, false, false};
}

void InvertImageSetOptionsFromTicket(II_Options* options, const Ticket& ticket)
{
    if (!options)
        return;
    const PropertyValue* dictionary = ticket.dictionary(kInvertImageOptionsKey);
    long negative = 0;
    long mirror = 0;
    options->negativeImage =
        GetCFIndexFromCFDictionary(dictionary, kNegativeImageKey, &negative) && negative > 0;
    options->mirrorImage =
        GetCFIndexFromCFDictionary(dictionary, kMirrorImageKey, &mirror) && mirror != 0;
    options->loaded = true;
}

PropertyValue InvertImageCreateTicketFromOptions(const II_Options& options)
{
    PropertyValue dictionary = PropertyValue::dictionary();
    WriteTicketValue(&dictionary, kNegativeImageKey, options.negativeImage ? 1 : 0);
    WriteTicketValue(&dictionary, kMirrorImageKey, options.mirrorImage ? 1 : 0);
    return dictionary;
}

Status InvertImageSync(II_Options* options, Ticket* ticket, bool direction,
                       InvertImageControls controls)
{
    if (!options || !ticket)
        return kBadParameter;
    if (direction) {
        InvertImageSetOptionsFromTicket(options, *ticket);
        return kNoError;
    }
    if (controls.negativeImage)
        options->negativeImage = true;
    if (controls.mirrorImage)
        options->mirrorImage = true;
    return ticket->setItem(kShellClient, kInvertImageOptionsKey,
                           InvertImageCreateTicketFromOptions(*options));
}

} // namespace orvan
