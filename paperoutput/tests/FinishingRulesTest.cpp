// The panel's rules on their own: the job-type dictionary, the finishing
// commands and menus, the finishing summary, the output destinations, the
// pictures and the setup dialogs' passcode and time rules.
#include "paperoutput/FinishingRules.h"
#include "paperoutput/OutputDestination.h"
#include "paperoutput/PaperOutputIcons.h"
#include "paperoutput/tests/PaperOutputTestSupport.h"

#include <functional>

namespace orvan {
namespace {

using testing::Describe;
using testing::Entry;
using testing::FinisherPpd;
using testing::PluginBundle;
using Arrange = std::function<void(PaperOutputRecord&)>;

// The entries of a job-type dictionary that differ from `base` (all of them
// without one).
QString JobTypeEntries(const PropertyValue& dictionary, const PropertyValue* base = nullptr)
{
    QStringList entries;
    for (const QString& key : {kJobTypeMediaTypeKey, kUseJobNameKey, kJobTypeValueKey,
                               kSavedJobNameKey, kSavedJobLocationKey, kSecurePrintPasswordKey,
                               kDelayedPrintTimeKey, kSaveDispositionKey, QStringLiteral("Extra")})
        if (!base || Entry(&dictionary, key) != Entry(base, key))
            entries << key + QLatin1Char('=') + Entry(&dictionary, key);
    return entries.join(QLatin1Char(' '));
}

TEST(JobTypeDictionary, WritesEachKeyByItsRuleAndReadsItBack)
{
    const PropertyValue fresh = JobTypeDictionary(nullptr, PaperOutputRecord());
    EXPECT_EQ(JobTypeEntries(fresh),
              "MediaType=CFIndex:0 UseJobName=false JobType=SInt32:1 SavedJobName=\"\" "
              "SavedJobLocation=\"file:///job-repository/\" SecurePrintPassword=absent "
              "DelayedPrintTime=SInt64:0 SaveDisposition=absent Extra=absent");
    PropertyValue existing = PropertyValue::dictionary();
    existing.insert(kSavedJobNameKey, QStringLiteral("old"));
    existing.insert(kSaveDispositionKey, PropertyValue::integer(1));
    existing.insert(QStringLiteral("Extra"), QStringLiteral("kept"));
    const struct
    {
        const char* name;
        bool fromTicket;
        Arrange setup;
        const char* changed; // from the fresh dictionary
    } rows[] = {
        {"nothing chosen", false, [](PaperOutputRecord&) {}, ""},
        {"saved job under the job's name", true,
         [](PaperOutputRecord& r) {
             r.jobType = kJobTypeSavedJob;
             r.useJobName = true;
             r.savedJobName = QStringLiteral("Q3 report");
             r.saveDisposition = kSaveAndPrint;
             r.jobTypeMediaType = 7;
         },
         "MediaType=CFIndex:7 UseJobName=true JobType=SInt32:3 SavedJobName=absent "
         "SaveDisposition=CFIndex:1 Extra=\"kept\""},
        {"sample set drops the disposition", true,
         [](PaperOutputRecord& r) { r.jobType = kJobTypeSampleSet; },
         "JobType=SInt32:8 Extra=\"kept\""},
        {"secure print in the public folder", true,
         [](PaperOutputRecord& r) {
             r.jobType = kJobTypeSecure;
             r.securePrintPasscode = QStringLiteral("0012");
             r.defaultLocation = true;
             r.savedJobName = QString();
         },
         "JobType=SInt32:6 SavedJobName=absent SavedJobLocation=absent "
         "SecurePrintPassword=\"0012\" Extra=\"kept\""},
        {"delayed print", false,
         [](PaperOutputRecord& r) {
             r.jobType = kJobTypeDelayed;
             r.delayedPrintTime = 3900000000LL;
         },
         "JobType=SInt32:7 DelayedPrintTime=SInt64:3900000000"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        PaperOutputRecord record;
        row.setup(record);
        const PropertyValue written =
            JobTypeDictionary(row.fromTicket ? &existing : nullptr, record);
        EXPECT_EQ(JobTypeEntries(written, &fresh), row.changed);
        PaperOutputRecord read;
        ReadJobTypeDictionary(&written, read);
        EXPECT_EQ(JobTypeDictionary(nullptr, read), JobTypeDictionary(nullptr, record));
    }
}

TEST(FinishingCommands, SetTheRecordAsTheCommandTableSays)
{
    const Arrange booklet = [](PaperOutputRecord& r) {
        r.bookletLayout = kBookletLayoutOn;
        r.finishingOption = kFinishingOptionBookletFold;
        r.fold = kBookletFold;
        r.twoSided = kDuplexShortEdge;
        r.punch = kThreeHolePunch;
    };
    const Arrange stapledAndPunched = [](PaperOutputRecord& r) {
        r.finishingOption = kFinishingOptionSingleStaple;
        r.singleStaple = kSingleStaple;
        r.multipleStaple = kMultipleStaples;
        r.punch = kThreeHolePunch;
    };
    const struct
    {
        std::uint32_t command;
        std::int32_t value;
        Arrange setup;
        const char* expected;
    } rows[] = {
        {kSingleStapleCommand, 5, booklet,
         "option=4 staples=5/1/1 fold=1 punch=4 layout=2 sides=2"},
        {kDualStapleCommand, 10, stapledAndPunched,
         "option=9 staples=1/10/1 fold=1 punch=4 layout=2 sides=1"},
        {kMultipleStapleCommand, 54, stapledAndPunched,
         "option=53 staples=1/1/54 fold=1 punch=1 layout=2 sides=1"},
        {kNoStapleCommand, 1, stapledAndPunched,
         "option=4 staples=1/1/1 fold=1 punch=4 layout=2 sides=1"},
        {kThreeHolePunchCommand, 4, stapledAndPunched,
         "option=30 staples=5/1/1 fold=1 punch=4 layout=2 sides=1"},
        {kNoPunchCommand, 1, stapledAndPunched,
         "option=4 staples=5/1/54 fold=1 punch=1 layout=2 sides=1"},
        {kZFoldCommand, 20, stapledAndPunched,
         "option=40 staples=1/1/1 fold=20 punch=1 layout=2 sides=1"},
        {kNoFoldCommand, 1, booklet, "option=0 staples=1/1/1 fold=1 punch=4 layout=2 sides=2"},
        {kBookletCreationCommand, 0, booklet,
         "option=0 staples=1/1/1 fold=1 punch=4 layout=2 sides=2"},
        // Covers and separators leave the booklet alone.
        {kCoversCommand, 0, booklet, "option=24 staples=1/1/1 fold=43 punch=4 layout=1 sides=3"},
    };
    for (const auto& row : rows) {
        PaperOutputRecord record;
        row.setup(record);
        EXPECT_TRUE(ApplyFinishingCommand(record, row.command, row.value));
        EXPECT_EQ(testing::Finishing(record), row.expected) << row.command;
    }
    PaperOutputRecord record;
    EXPECT_FALSE(ApplyFinishingCommand(record, FourCharCode("Sclr"), 2));

    // The staple pop-up keeps one staple value; both set (not reachable from
    // the menus) writes the single one.
    ApplyStapleChoice(record, kDualStaple);
    EXPECT_EQ(record.stapleLocation(), kDualStaple);
    record.singleStaple = kSingleStaple;
    EXPECT_EQ(record.stapleLocation(), kSingleStaple);
    ApplyStapleChoice(record, kFinishingNone);
    EXPECT_EQ(record.stapleLocation(), kFinishingNone);
}

TEST(FinishingMenus, FollowTheInstalledHardware)
{
    const struct
    {
        FinisherPpd::Hardware hardware;
        const char* staples;
        const char* punches;
        const char* folds;
    } rows[] = {
        {{"BFMBFM", true, true, false, false},
         "None[Stp0 1], 1 Staple[Stp1 5], 2 Staples[Stp2 10], Multiple Staples[Stp4 54]",
         "No Hole Punch[Hpn0 1], 2-Hole Punch[Hpn2 3], 3-Hole Punch[Hpn3 4]",
         ""},
        {{"BFMBFM", true, false, true, false},
         "No Staple[Stp0 1], 1 Staple[Stp1 5], 2 Staples[Stp2 10], Multiple Staples[Stp4 54]",
         "None[Hpn0 1]",
         "-, No Fold[Fld0 1], Bi-Fold[Bfld 43], C-Fold[Cfld 19], Z-Fold[Zfld 20], -, Booklet "
         "Creation…[Bkcr 0]"},
    };
    for (const auto& row : rows) {
        FinisherPpd ppd(row.hardware);
        const FinishingDevice device = FinishingDevice::FromInstalledFeatures();
        EXPECT_EQ(Describe(BuildStapleMenu(&PluginBundle(), device)), row.staples);
        EXPECT_EQ(Describe(BuildPunchMenu(&PluginBundle(), device)), row.punches);
        EXPECT_EQ(Describe(BuildFoldMenu(&PluginBundle(), device)), row.folds);
    }
}

TEST(FinishingSummary, ListsOneLinePerFinishingOfTheDevice)
{
    const FinishingDevice staplesAndPunch{false, true, true};
    const FinishingDevice folder{true, true, false, true};
    const struct
    {
        FinishingDevice device;
        Arrange setup;
        const char* expected;
    } rows[] = {
        {staplesAndPunch,
         [](PaperOutputRecord& r) {
             r.dualStaple = kDualStaple;
             r.punch = kThreeHolePunch;
         },
         "- 2 Staples\n- 3-Hole Punch\n"},
        {FinishingDevice{false, true, false}, [](PaperOutputRecord&) {}, "- No Staple\n"},
        {folder, [](PaperOutputRecord& r) { r.fold = kCFold; }, "- No Staple\n- C-Fold\n"},
        {folder,
         [](PaperOutputRecord& r) {
             r.finishingOption = kFinishingOptionBookletFold;
             r.fold = kBookletFoldStaple;
             r.bookletLayout = kBookletLayoutOn;
         },
         "- Booklet Fold and Staple\n- Booklet Layout\n"},
        {staplesAndPunch, [](PaperOutputRecord& r) { r.bookletLayout = kBookletLayoutOn; },
         "- No Fold\n- Booklet Layout\n"},
    };
    for (const auto& row : rows) {
        PaperOutputRecord record;
        row.setup(record);
        EXPECT_EQ(CreateFinishingString(&PluginBundle(), record, row.device), row.expected);
    }
    EXPECT_EQ(CreateFinishingString(nullptr, PaperOutputRecord(), staplesAndPunch),
              "- STRING NOT FOUND\n- STRING NOT FOUND\n");
}

TEST(OutputDestination, TopTraysFollowTheFinisherConfigurationAndTheInserter)
{
    const struct
    {
        const char* configuration;
        bool inserter;
        const char* trays; // after "Printer Default", "Automatic" and the stacker
    } rows[] = {
        {"BFMBFM", false, "Top Catch Tray=18"},
        {"BFMBFM", true, "Finisher C: Top Tray=18"},
        {"BFMBFMFTMS", true, "Finisher D: Top Tray=18"},
        {"FTMSFTMS", false, "Finisher B: Top Tray=22, Finisher A: Top Tray=20"},
        {"FTMSFTMS", true, "Finisher B: Top Tray=20, Finisher C: Top Tray=22"},
        {"BFMFTMSFTMS", false, "Finisher C: Top Tray=22, Finisher B: Top Tray=18"},
        {"BFMFTMSFTMS", true, "Finisher C: Top Tray=20, Finisher D: Top Tray=22"},
        {"OTHER", false, "Top Catch Tray=18"},
        {"OTHER", true, "Finisher B: Top Tray=18"},
    };
    for (const auto& row : rows) {
        FinisherPpd ppd({row.configuration, false, false, false, row.inserter});
        MenuModel menu;
        menu.append({QStringLiteral("stale"), 0, 99, false});
        PopulateOutputDestination(&PluginBundle(), menu);
        const QString stacker = row.inserter ? QStringLiteral("Finisher B: Main Stacker=4")
                                             : QStringLiteral("Main Stacker=4");
        EXPECT_EQ(Describe(menu, false),
                  QStringLiteral("Printer Default=-2147483648, Automatic=1, ") + stacker + ", " +
                      row.trays)
            << row.configuration << " inserter " << row.inserter;
    }
    UnloadInstallableOptions();
    MenuModel plain;
    PopulateOutputDestination(&PluginBundle(), plain);
    EXPECT_EQ(Describe(plain, false), "Printer Default=-2147483648, Automatic=1");
}

TEST(PaperOutputIcons, NamesFollowTheValues)
{
    const struct
    {
        Arrange setup;
        const char* finishing;
        const char* sides;
    } rows[] = {
        {[](PaperOutputRecord&) {}, "OfficeFinishing_None.gif", "2SidedPrinting_1Sided.gif"},
        {[](PaperOutputRecord& r) {
             r.dualStaple = kDualStaple;
             r.punch = kFourHolePunch;
             r.twoSided = kDuplexShortEdge;
         },
         "OfficeFinishing_2St&4Hp.gif", "2SidedPrinting_2SidedFlip.gif"},
        {[](PaperOutputRecord& r) { r.fold = kBookletFoldStaple; },
         "OfficeFinishing_BKlt_Fold&Stple.gif", "2SidedPrinting_1Sided.gif"},
        {[](PaperOutputRecord& r) {
             r.fold = kBookletFoldStaple;
             r.bookletLayout = kBookletLayoutOn;
             r.twoSided = kDuplexShortEdge;
         },
         "OfficeFinishing_Bklt_Fold&Stpl_Layout.gif", "2SidedPrinting_2Sided.gif"},
    };
    for (const auto& row : rows) {
        PaperOutputRecord record;
        row.setup(record);
        EXPECT_EQ(FinishingIconName(record), row.finishing);
        EXPECT_EQ(TwoSidedIconName(record), row.sides);
        EXPECT_FALSE(PluginBundle().resourcePath(PaperOutputImagePath(row.finishing)).isEmpty())
            << row.finishing;
    }
    for (std::int32_t type = 1; type <= 9; ++type) {
        const QString name = JobTypeIconName(type);
        EXPECT_EQ(name.isEmpty(), type == 4) << type;
        EXPECT_TRUE(name.isEmpty() ||
                    !PluginBundle().resourcePath(PaperOutputImagePath(name)).isEmpty())
            << type;
        EXPECT_EQ(EnableDisableJobTypeSetupButton(type), type != 1 && type != 2 && type != 8)
            << type;
    }
}

} // namespace
} // namespace orvan
