#include "fax/FaxOptions.h"

namespace orvan {

namespace {

std::int32_t integerOr(const PropertyValue& options, const QString& key, std::int32_t fallback,
                       std::int32_t lowest, std::int32_t highest)
{
    const PropertyValue* value = options.find(key);
    const auto number = value ? value->toInteger() : std::nullopt;
    if (!number || *number < lowest || *number > highest)
        return fallback;
    return static_cast<std::int32_t>(*number);
}

bool booleanOr(const PropertyValue& options, const QString& key, bool fallback)
{
    const PropertyValue* value = options.find(key);
    return value && value->toBool() ? *value->toBool() : fallback;
}

} // namespace

FaxOptionControls ReadFaxOptions(const PropertyValue& options)
{
    FaxOptionControls controls;
    controls.confirmationSheet = booleanOr(options, kFaxConfirmationSheetKey, true)
                                     ? kPrintConfirmationSheet
                                     : kNoConfirmationSheet;
    controls.sendSpeed = integerOr(options, kFaxSendSpeedKey, controls.sendSpeed,
                                   kSendSpeedForced4800, kSendSpeedSuperG3);
    controls.resolution = integerOr(options, kFaxResolutionKey, controls.resolution,
                                    kFaxResolutionStandard, kFaxResolutionSuperfine);
    if (const PropertyValue* sendTime = options.find(kFaxSendTimeKey))
        if (const auto seconds = sendTime->toInteger()) {
            controls.sendLater = true;
            controls.sendTime = QDateTime::fromSecsSinceEpoch(*seconds);
        }
    if (const PropertyValue* prefix = options.find(kFaxDialingPrefixKey);
        prefix && prefix->isString()) {
        controls.dialingPrefixOn = true;
        controls.dialingPrefix = prefix->toString();
    }
    if (const PropertyValue* card = options.find(kFaxCreditCardKey); card && card->isString()) {
        controls.creditCardOn = true;
        controls.creditCard = card->toString();
    }
    controls.coverSheet =
        booleanOr(options, kFaxCoverSheetKey, false) ? kPrintCoverSheet : kNoCoverSheet;
    if (const PropertyValue* notes = options.find(kFaxCoverSheetNotesKey))
        controls.coverSheetNotes = notes->toString();
    controls.promptDuplicate = booleanOr(options, kFaxPromptDuplicateKey, true);
    controls.promptRemove = booleanOr(options, kFaxPromptRemoveKey, true);
    return controls;
}

void WriteFaxOptions(const FaxOptionControls& controls, const QString& localizedNotesLabel,
                     PropertyValue* options)
{
    if (!options)
        return;
    if (!options->isDictionary())
        *options = PropertyValue::dictionary();
    options->insert(kFaxConfirmationSheetKey,
                    PropertyValue::boolean(controls.confirmationSheet == kPrintConfirmationSheet));
    options->insert(kFaxSendSpeedKey, PropertyValue::integer(controls.sendSpeed));
    options->insert(kFaxResolutionKey, PropertyValue::integer(controls.resolution));
    if (controls.sendLater && controls.sendTime.isValid())
        options->insert(
            kFaxSendTimeKey,
            PropertyValue::integer(controls.sendTime.toSecsSinceEpoch(), NumberType::SInt64));
    else
        options->remove(kFaxSendTimeKey);
    if (controls.dialingPrefixOn)
        options->insert(kFaxDialingPrefixKey, controls.dialingPrefix);
    else
        options->remove(kFaxDialingPrefixKey);
    if (controls.creditCardOn)
        options->insert(kFaxCreditCardKey, controls.creditCard);
    else
        options->remove(kFaxCreditCardKey);
    if (controls.coverSheet == kPrintCoverSheet) {
        if (!controls.coverSheetNotes.isEmpty()) {
            options->insert(kFaxCoverSheetNotesKey, controls.coverSheetNotes);
            options->insert(kFaxLocalizedNotesLabelKey, localizedNotesLabel);
        } else {
            // Earlier notes stay; only their label goes.
            options->remove(kFaxLocalizedNotesLabelKey);
        }
    }
    options->insert(kFaxCoverSheetKey,
                    PropertyValue::boolean(controls.coverSheet == kPrintCoverSheet));
    options->insert(kFaxPromptDuplicateKey, PropertyValue::boolean(controls.promptDuplicate));
    options->insert(kFaxPromptRemoveKey, PropertyValue::boolean(controls.promptRemove));
}

} // namespace orvan
