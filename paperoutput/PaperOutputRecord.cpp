#include "paperoutput/PaperOutputRecord.h"

#include "settings/DictionaryAccess.h"

namespace orvan {

PaperOutputRecord::PaperOutputRecord(const PaperOutputRecord& other)
{
    *this = other;
}

PaperOutputRecord& PaperOutputRecord::operator=(const PaperOutputRecord& other)
{
    if (this == &other)
        return *this;
    jobType = other.jobType;
    orientation = other.orientation;
    jobName = other.jobName;
    separatorOption = other.separatorOption;
    separatorStock = other.separatorStock;
    jobLevelStock = other.jobLevelStock;
    savedJobName = other.savedJobName;
    useJobName = other.useJobName;
    savedJobLocation = other.savedJobLocation;
    defaultLocation = other.defaultLocation;
    withPasscode = other.withPasscode;
    saveDisposition = other.saveDisposition;
    jobTypeMediaType = other.jobTypeMediaType;
    securePrintPasscode = other.securePrintPasscode;
    delayedPrintTime = other.delayedPrintTime;
    finishingOption = other.finishingOption;
    singleStaple = other.singleStaple;
    dualStaple = other.dualStaple;
    multipleStaple = other.multipleStaple;
    fold = other.fold;
    bindValue = other.bindValue;
    punch = other.punch;
    offset = other.offset;
    offsetSubsetEnabled = other.offsetSubsetEnabled;
    pagesPerSubset = other.pagesPerSubset;
    slipSheet = other.slipSheet;
    finishingCustom = other.finishingCustom;
    twoSided = other.twoSided;
    outputDestination = other.outputDestination;
    bookletLayout = other.bookletLayout;
    drawOutlines = other.drawOutlines;
    forceNewSize = other.forceNewSize;
    bookletSize = other.bookletSize;
    gutter = other.gutter;
    creep = other.creep;
    faxOptions = other.faxOptions;
    faxRecipientList = other.faxRecipientList;
    frontCover = other.frontCover ? other.frontCover->clone() : nullptr;
    backCover = other.backCover ? other.backCover->clone() : nullptr;
    return *this;
}

std::int32_t PaperOutputRecord::stapleLocation() const
{
    for (const std::int32_t staple : {singleStaple, dualStaple, multipleStaple})
        if (staple != kFinishingNone)
            return staple;
    return kFinishingNone;
}

void ReadJobTypeDictionary(const PropertyValue* dictionary, PaperOutputRecord& record)
{
    if (!dictionary || !dictionary->isDictionary())
        return;
    long number = 0;
    if (CFDictionaryGetNumber(dictionary, kJobTypeValueKey, &number, NumberType::Long))
        record.jobType = static_cast<std::int32_t>(number);
    CFDictionaryGetNumber(dictionary, kJobTypeMediaTypeKey, &record.jobTypeMediaType,
                          NumberType::CFIndex);
    CFDictionaryGetNumber(dictionary, kSaveDispositionKey, &record.saveDisposition,
                          NumberType::CFIndex);
    CFDictionaryGetNumber(dictionary, kDelayedPrintTimeKey, &record.delayedPrintTime,
                          NumberType::SInt64);
    if (const PropertyValue* flag = dictionary->find(kUseJobNameKey); flag && flag->isBoolean())
        record.useJobName = *flag->toBool();
    const auto readString = [dictionary](const QString& key, QString& field) {
        if (const PropertyValue* text = dictionary->find(key); text && text->isString())
            field = text->toString();
    };
    // The flags are not in the ticket; a key the writing rules left out
    // stands for them, so a dictionary reads back as it was written.
    if (!dictionary->contains(kSavedJobNameKey) && !record.useJobName)
        record.savedJobName = QString();
    readString(kSavedJobNameKey, record.savedJobName);
    record.defaultLocation = !dictionary->contains(kSavedJobLocationKey);
    readString(kSavedJobLocationKey, record.savedJobLocation);
    readString(kSecurePrintPasswordKey, record.securePrintPasscode);
}

PropertyValue JobTypeDictionary(const PropertyValue* current, const PaperOutputRecord& record)
{
    PropertyValue dictionary;
    if (current && current->isDictionary()) {
        dictionary = *current;
    } else {
        dictionary = PropertyValue::dictionary();
        dictionary.insert(kSavedJobNameKey, QStringLiteral(""));
    }
    CFDictionarySetNumber(&dictionary, kJobTypeMediaTypeKey, NumberType::CFIndex,
                          static_cast<std::int64_t>(record.jobTypeMediaType));
    dictionary.insert(kUseJobNameKey, PropertyValue::boolean(record.useJobName));
    CFDictionarySetNumber(&dictionary, kJobTypeValueKey, NumberType::SInt32,
                          static_cast<std::int64_t>(record.jobType));
    if (!record.useJobName && !record.savedJobName.isNull())
        dictionary.insert(kSavedJobNameKey, record.savedJobName);
    else
        dictionary.remove(kSavedJobNameKey);
    if (!record.defaultLocation && !record.savedJobLocation.isNull())
        dictionary.insert(kSavedJobLocationKey, record.savedJobLocation);
    else
        dictionary.remove(kSavedJobLocationKey);
    if (!record.securePrintPasscode.isNull())
        dictionary.insert(kSecurePrintPasswordKey, record.securePrintPasscode);
    CFDictionarySetNumber(&dictionary, kDelayedPrintTimeKey, NumberType::SInt64,
                          record.delayedPrintTime);
    if (record.jobType == kJobTypeSavedJob)
        CFDictionarySetNumber(&dictionary, kSaveDispositionKey, NumberType::CFIndex,
                              static_cast<std::int64_t>(record.saveDisposition));
    else
        dictionary.remove(kSaveDispositionKey);
    return dictionary;
}

} // namespace orvan
