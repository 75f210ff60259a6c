// Fixtures of the image-quality tests: PPDs made current for one test, the
// plug-in's bundle in the build tree, and a session with one PPD choice set.
#pragma once

#include "tests/support/TestData.h"

#include "imagequality/InvertImage.h"
#include "printerdesc/PPDAccess.h"
#include "settings/Bundle.h"
#include "settings/DictionaryAccess.h"
#include "settings/PrintSession.h"
#include "settings/Ticket.h"

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <ostream>
#include <utility>

namespace orvan::testing {

inline const QString kNoResolutionPpd =
    ORVAN_SOURCE_DIR "/imagequality/tests/ppd/no-resolution.ppd";

// Makes the PPD the current one for the guard's lifetime.
class CurrentPpd
{
public:
    explicit CurrentPpd(const QString& path = kSamplePpd)
    {
        QString error;
        PpdFilePtr ppd = OpenPPDFile(path, &error);
        EXPECT_TRUE(ppd) << qPrintable(path) << ": " << qPrintable(error);
        PPDSetCurrent(std::move(ppd));
    }
    ~CurrentPpd() { PPDCloseCurrent(); }
    CurrentPpd(const CurrentPpd&) = delete;
    CurrentPpd& operator=(const CurrentPpd&) = delete;

    ppd_file_t* get() const { return PPDGetCurrent(); }
};

inline QString PpdChoice(const PrintSession& session, const char* keyword)
{
    const PropertyValue* choice = session.printSettings().ppdDictionary().find(keyword);
    return choice ? choice->toString() : QString();
}

inline void SetPpdChoice(PrintSession& session, const char* keyword, const char* choice)
{
    session.printSettings().ppdDictionary().insert(keyword, choice);
}

// The "NegativeImage" and "MirrorImage" numbers of the ticket's invert-image
// options; -1 where absent.
inline std::pair<long, long> InvertFlags(const Ticket& ticket)
{
    const PropertyValue* options = ticket.dictionary(kInvertImageOptionsKey);
    long negative = -1, mirror = -1;
    GetCFIndexFromCFDictionary(options, kNegativeImageKey, &negative);
    GetCFIndexFromCFDictionary(options, kMirrorImageKey, &mirror);
    return {negative, mirror};
}

// The ticket's invert-image options with these entries; a null value leaves
// its key out.
inline void SetInvertFlags(Ticket& ticket, const PropertyValue& negative,
                           const PropertyValue& mirror)
{
    PropertyValue options = PropertyValue::dictionary();
    if (!negative.isNull())
        options.insert(kNegativeImageKey, negative);
    if (!mirror.isNull())
        options.insert(kMirrorImageKey, mirror);
    ticket.setItem(kShellClient, kInvertImageOptionsKey, options);
}

// The strings of an array value (the summary's titles or values), joined.
inline QString Joined(const PropertyValue& array)
{
    QStringList strings;
    for (const PropertyValue& element : array.asArray())
        strings << element.toString();
    return strings.join(", ");
}

} // namespace orvan::testing
