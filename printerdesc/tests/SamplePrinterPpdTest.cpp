// The bundled sample printer's PPD: conformance, and agreement with the
// choice maps and the constraints the dialog relies on.
#include "PpdTestSupport.h"

#include "settings/SettingMaps.h"

#include <QProcess>
#include <QStandardPaths>

namespace orvan {
namespace {

using testing::kSamplePpd;
using testing::OpenOrFail;

TEST(SamplePrinterPpd, PassesCupstestppd)
{
    const QString tool = QStandardPaths::findExecutable("cupstestppd");
    if (tool.isEmpty())
        GTEST_SKIP() << "cupstestppd is not installed";
    QProcess check;
    check.start(tool, {kSamplePpd});
    ASSERT_TRUE(check.waitForFinished(60000));
    const QByteArray report = check.readAllStandardOutput() + check.readAllStandardError();
    EXPECT_EQ(check.exitCode(), 0) << report.constData();
    EXPECT_TRUE(report.contains(": PASS")) << report.constData();
}

// Each main keyword is an option whose choices are its map's choices, in map
// order, a key that occurs twice in the map listed once.
TEST(SamplePrinterPpd, EveryMainKeywordOffersItsMapsChoices)
{
    PpdFilePtr ppd = OpenOrFail(kSamplePpd);
    for (const MainKeywordMap* row = _MainKeywordMap; row->mainKeyword; ++row) {
        QList<QByteArray> expected, offered;
        for (const PPDChoiceMap* choice = row->choices; choice->choice; ++choice) {
            if (!expected.contains(choice->choice))
                expected << choice->choice;
        }
        const auto choices = PpdOptionChoices(ppd.get(), row->mainKeyword);
        ASSERT_TRUE(choices) << row->mainKeyword;
        for (const PpdChoice& choice : *choices) {
            offered << choice.keyword;
            EXPECT_FALSE(choice.text.isEmpty()) << choice.keyword.constData();
        }
        EXPECT_EQ(offered, expected) << row->mainKeyword;
    }
}

// Stapling, punching and folding need the finisher; the defaults need nothing.
TEST(SamplePrinterPpd, DefaultsAreConflictFreeAndFinishingNeedsTheFinisher)
{
    PpdFilePtr ppd = OpenOrFail(kSamplePpd);
    PpdMarkDefaults(ppd.get());
    EXPECT_EQ(PpdMarkOption(ppd.get(), "StapleLocation", "DualLandscape"), 0) << "with it";
    EXPECT_EQ(PpdMarkOption(ppd.get(), "StapleLocation", "None"), 0);
    EXPECT_EQ(PpdMarkOption(ppd.get(), "Option4", "False"), 0);
    const std::pair<const char*, const char*> finishing[] = {{"StapleLocation", "DualLandscape"},
                                                             {"QVPunch", "2HolePunch"},
                                                             {"QVPunch", "4HolePunch"},
                                                             {"QVFold", "Z"},
                                                             {"QVFold", "BiFoldStaple"}};
    for (const auto& [keyword, choice] : finishing) {
        EXPECT_GT(PpdMarkOption(ppd.get(), keyword, choice), 0) << choice;
        EXPECT_EQ(PpdMarkOption(ppd.get(), keyword, "None"), 0) << keyword;
    }
}

} // namespace
} // namespace orvan
