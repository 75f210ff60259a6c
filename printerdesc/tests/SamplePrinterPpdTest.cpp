// The bundled sample printer's PPD: conformance, and agreement with the
// choice maps and the installable options the dialog reads.
#include "PpdTestSupport.h"

#include "settings/SettingMaps.h"

#include <QProcess>
#include <QStandardPaths>

#include <cstring>

namespace orvan {
namespace {

using testing::OpenOrFail;
using testing::SamplePpdPath;

TEST(SamplePrinterPpd, PassesCupstestppd)
{
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("cupstestppd"));
    if (tool.isEmpty())
        GTEST_SKIP() << "cupstestppd is not installed";
    QProcess check;
    check.start(tool, {SamplePpdPath()});
    ASSERT_TRUE(check.waitForFinished(60000));
    const QByteArray report = check.readAllStandardOutput() + check.readAllStandardError();
    EXPECT_EQ(check.exitCode(), 0) << report.constData();
    EXPECT_TRUE(report.contains(": PASS")) << report.constData();
}

// Each main keyword is an option whose choices are its map's choices, in map
// order, a key that occurs twice in the map listed once.
TEST(SamplePrinterPpd, EveryMainKeywordOffersItsMapsChoices)
{
    PpdFilePtr ppd = OpenOrFail(SamplePpdPath());
    for (const MainKeywordMap* row = _MainKeywordMap; row->mainKeyword; ++row) {
        SCOPED_TRACE(row->mainKeyword);
        QList<QByteArray> expected;
        for (const PPDChoiceMap* choice = row->choices; choice->choice; ++choice) {
            if (!expected.contains(choice->choice))
                expected << choice->choice;
        }
        const auto choices = PpdOptionChoices(ppd.get(), row->mainKeyword);
        ASSERT_TRUE(choices);
        QList<QByteArray> offered;
        for (const PpdChoice& choice : *choices) {
            offered << choice.keyword;
            EXPECT_FALSE(choice.text.isEmpty()) << choice.keyword.constData();
        }
        EXPECT_EQ(offered, expected);
    }
}

TEST(SamplePrinterPpd, DefaultsAreConflictFreeAndFinishingNeedsTheFinisher)
{
    PpdFilePtr ppd = OpenOrFail(SamplePpdPath());
    PpdMarkDefaults(ppd.get());
    EXPECT_EQ(PpdMarkOption(ppd.get(), "StapleLocation", "DualLandscape"), 0);
    EXPECT_GT(PpdMarkOption(ppd.get(), "Option4", "False"), 0)
        << "the staples now lack their finisher";
    EXPECT_EQ(PpdMarkOption(ppd.get(), "StapleLocation", "None"), 0);
    for (const char* choice : {"HolePunch", "2HolePunch", "3HolePunch", "4HolePunch"})
        EXPECT_GT(PpdMarkOption(ppd.get(), "QVPunch", choice), 0) << choice;
    EXPECT_EQ(PpdMarkOption(ppd.get(), "QVPunch", "None"), 0);
    for (const char* choice : {"C", "Z", "ZFoldHalfSheet", "BiFold", "BiFoldStaple"})
        EXPECT_GT(PpdMarkOption(ppd.get(), "QVFold", choice), 0) << choice;
}

TEST(SamplePrinterPpd, InstallableOptionsGroup)
{
    PpdFilePtr ppd = OpenOrFail(SamplePpdPath());
    EXPECT_EQ(PpdManufacturer(ppd.get()), QByteArray("Orvan"));
    PpdMarkDefaults(ppd.get());
    const auto marked = PpdMarkedChoicesInGroup(ppd.get(), "InstallableOptions");
    ASSERT_TRUE(marked);
    const std::vector<std::pair<QByteArray, QByteArray>> expected = {
        {"Option1", "Tray3HiCap"}, {"Option4", "True"}, {"Option5", "True"},
        {"Option8", "True"},       {"Option9", "True"},
    };
    EXPECT_EQ(*marked, expected);
    const auto trays = PpdOptionChoices(ppd.get(), "Option1");
    ASSERT_TRUE(trays);
    QList<QByteArray> trayChoices;
    for (const PpdChoice& choice : *trays)
        trayChoices << choice.keyword;
    EXPECT_EQ(trayChoices, (QList<QByteArray>{"Tray1", "Tray2", "Tray3", "Tray3HiCap", "Tray4"}));
}

} // namespace
} // namespace orvan
