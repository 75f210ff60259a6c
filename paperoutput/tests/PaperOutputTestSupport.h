// Fixtures of the Paper/Output tests: the plug-in's bundle in the build tree,
// a finisher test PPD written per case with chosen installed hardware, and
// readable forms of menus, dictionaries and records.
#pragma once

#include "tests/support/TestData.h"

#include "paperoutput/PaperOutputRecord.h"
#include "printerdesc/InstallableOptions.h"
#include "printerdesc/PPDAccess.h"
#include "settings/Bundle.h"
#include "settings/MenuModel.h"

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>

namespace orvan::testing {

// Every finishing feature, each present when its installable option is
// "True"; the trays always present when loaded.
inline constexpr _InstalledFeatureMap kFinisherFeatures[] = {
    {"SingleStapleKey", "Staples", "True", "1 Staple", 0},
    {"DualStapleKey", "Staples", "True", "2 Staples", 0},
    {"MultipleStapleKey", "Staples", "True", "Multiple Staples", 0},
    {"DualPunchKey", "Punch", "True", "2 Hole Punch", 0},
    {"TriplePunchKey", "Punch", "True", "3 Hole Punch", 0},
    {"BookletFoldKey", "Folder", "True", nullptr, 0},
    {"CFoldKey", "Folder", "True", nullptr, 0},
    {"ZFoldKey", "Folder", "True", nullptr, 0},
    {"BrentaInserter", "Inserter", "True", nullptr, 0},
    {"StackerTray1Key", nullptr, nullptr, "Main Stacker", 4},
    {"SimpleCatchTrayKey", nullptr, nullptr, "Catch Tray", 18},
    {nullptr, nullptr, nullptr, nullptr, 0},
};

// A finisher PPD whose installable options have the given defaults, loaded
// with kFinisherFeatures for the guard's lifetime.
class FinisherPpd
{
public:
    struct Hardware
    {
        const char* configuration = "BFMBFM"; // "Option1"
        bool staples = false, punch = false, folder = false, inserter = false;
    };

    explicit FinisherPpd(const Hardware& hardware)
    {
        const auto on = [](bool value) { return QString::fromLatin1(value ? "True" : "False"); };
        QString text = QStringLiteral(R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "FINISHER.PPD"
*Manufacturer: "Orvan"
*Product: "(Orvan Finisher Test)"
*ModelName: "Orvan Finisher Test"
*ShortNickName: "Orvan Finisher Test"
*NickName: "Orvan Finisher Test"
*PSVersion: "(3010.000) 0"
*OpenGroup: InstallableOptions/Installed Options
*OpenUI *Option1/Finisher Configuration: PickOne
*DefaultOption1: %1
*Option1 %1/Configuration: ""
*CloseUI: *Option1
)PPD");
        text = text.arg(QString::fromLatin1(hardware.configuration));
        for (const auto& [option, value] :
             {std::pair{"Staples", hardware.staples}, std::pair{"Punch", hardware.punch},
              std::pair{"Folder", hardware.folder}, std::pair{"Inserter", hardware.inserter}})
            text +=
                QStringLiteral("*OpenUI *%1/%1: PickOne\n*Default%1: %2\n*%1 True/Installed: \"\"\n"
                               "*%1 False/Not Installed: \"\"\n*CloseUI: *%1\n")
                    .arg(QString::fromLatin1(option), on(value));
        text += QStringLiteral(R"PPD(*CloseGroup: InstallableOptions
*OpenUI *PageSize/Page Size: PickOne
*DefaultPageSize: Letter
*PageSize Letter/Letter: "<</PageSize[612 792]>>setpagedevice"
*CloseUI: *PageSize
)PPD");
        QFile file(m_folder.filePath("finisher.ppd"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toLatin1());
        file.close();
        UnloadInstallableOptions();
        QString error;
        const PpdFilePtr ppd = OpenPPDFile(file.fileName(), &error);
        EXPECT_TRUE(ppd) << error.toStdString();
        LoadInstallableOptions(ppd.get(), kFinisherFeatures);
    }
    ~FinisherPpd() { UnloadInstallableOptions(); }
    FinisherPpd(const FinisherPpd&) = delete;
    FinisherPpd& operator=(const FinisherPpd&) = delete;

private:
    QTemporaryDir m_folder;
};

// "text[Cmd value]" per item, separators as "-", joined by ", ".
inline QString Describe(const MenuModel& menu, bool withCommands = true)
{
    QStringList items;
    for (const MenuItem& item : menu.items()) {
        if (item.separator) {
            items << QStringLiteral("-");
            continue;
        }
        QString text = item.text;
        if (withCommands && item.commandId) {
            const char code[5] = {char(item.commandId >> 24), char(item.commandId >> 16),
                                  char(item.commandId >> 8), char(item.commandId), 0};
            text += QStringLiteral("[%1 %2]").arg(QLatin1String(code)).arg(item.referenceValue);
        } else if (!withCommands) {
            text += QLatin1Char('=') + QString::number(item.referenceValue);
        }
        items << text;
    }
    return items.join(QStringLiteral(", "));
}

// A dictionary entry as the number type and value, a quoted string, a
// boolean, or "absent".
inline QString Entry(const PropertyValue* dictionary, const QString& key)
{
    const PropertyValue* value = dictionary ? dictionary->find(key) : nullptr;
    if (!value)
        return QStringLiteral("absent");
    if (value->isString())
        return QLatin1Char('"') + value->toString() + QLatin1Char('"');
    if (value->isBoolean())
        return *value->toBool() ? QStringLiteral("true") : QStringLiteral("false");
    if (value->isNumber())
        return QLatin1String(numberTypeName(*value->numberType())) + QLatin1Char(':') +
               QString::number(value->toInteger().value_or(0));
    return QStringLiteral("other");
}

// The finishing fields of a record in one line.
inline QString Finishing(const PaperOutputRecord& r)
{
    return QStringLiteral("option=%1 staples=%2/%3/%4 fold=%5 punch=%6 layout=%7 sides=%8")
        .arg(r.finishingOption)
        .arg(r.singleStaple)
        .arg(r.dualStaple)
        .arg(r.multipleStaple)
        .arg(r.fold)
        .arg(r.punch)
        .arg(r.bookletLayout)
        .arg(r.twoSided);
}

} // namespace orvan::testing
