// Fixtures of the image-quality tests: PPDs made current for one test, the
// plug-in's bundle in the build tree, and a session with one PPD choice set.
#pragma once

#include "printerdesc/PPDAccess.h"
#include "settings/Bundle.h"
#include "settings/PrintSession.h"

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <ostream>

// Readable QStrings in failure messages.
inline void PrintTo(const QString& text, std::ostream* os)
{
    *os << '"' << text.toStdString() << '"';
}

namespace orvan::testing {

inline QString SamplePpdPath()
{
    return QStringLiteral(ORVAN_SOURCE_DIR "/resources/bundle/ppd/Orvan-Meridian-5000.ppd");
}

inline QString TestPpdPath(const char* name)
{
    return QStringLiteral(ORVAN_SOURCE_DIR "/imagequality/tests/ppd/") + QLatin1String(name);
}

// Makes the PPD the current one for the guard's lifetime.
class CurrentPpd
{
public:
    explicit CurrentPpd(const QString& path)
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

// The plug-in folder of the build tree, with its string tables and pictures.
inline const Bundle& PluginBundle()
{
    static const Bundle bundle(QStringLiteral(ORVAN_PLUGIN_DIR));
    return bundle;
}

inline QString PpdChoice(const PrintSession& session, const char* keyword)
{
    const PropertyValue* choice =
        session.printSettings().ppdDictionary().find(QLatin1String(keyword));
    return choice ? choice->toString() : QString();
}

inline void SetPpdChoice(PrintSession& session, const char* keyword, const char* choice)
{
    session.printSettings().ppdDictionary().insert(QLatin1String(keyword),
                                                   QString::fromLatin1(choice));
}

// The strings of an array value (GetSummaryText's titles or values).
inline QStringList Strings(const PropertyValue& array)
{
    QStringList strings;
    for (const PropertyValue& element : array.asArray())
        strings << element.toString();
    return strings;
}

} // namespace orvan::testing
