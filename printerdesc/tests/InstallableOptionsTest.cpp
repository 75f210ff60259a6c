// Installed hardware from the PPD, the features gated on it, the printer
// picture and the device profile.
#include "PpdTestSupport.h"

#include "printerdesc/DeviceProfile.h"
#include "settings/Bundle.h"

#include <QTemporaryDir>

namespace orvan {
namespace {

using testing::InstalledOptionsGuard;
using testing::OpenOrFail;
using testing::SamplePpdPath;
using testing::TestPpdPath;
using testing::WriteSampleVariant;

QString OptionValue(const char* option)
{
    QString choice;
    return getInstallableOptionValue(QString::fromUtf8(option), &choice) ? choice
                                                                         : QStringLiteral("<none>");
}

TEST(InstallableOptions, SamplePrinterDefaultsShowEveryFeature)
{
    InstalledOptionsGuard guard;
    PpdFilePtr ppd = OpenOrFail(SamplePpdPath());
    EXPECT_TRUE(LoadInstallableOptions(ppd.get(), _InstalledFeatures));
    EXPECT_EQ(OptionValue("Option1"), QStringLiteral("Tray3HiCap"));
    EXPECT_EQ(OptionValue("Option4"), QStringLiteral("True"));
    EXPECT_EQ(OptionValue("Option5"), QStringLiteral("True"));
    EXPECT_EQ(OptionValue("Option8"), QStringLiteral("True"));
    EXPECT_EQ(OptionValue("Option9"), QStringLiteral("True"));
    EXPECT_EQ(OptionValue("PageSize"), QStringLiteral("<none>"))
        << "only the InstallableOptions group";
    for (const char* feature : {"SingleStapleKey", "JobStorage", "FaxKey", "PostPrintInserterKey"})
        EXPECT_EQ(getInstalledFeature(feature), 1) << feature;
    EXPECT_EQ(getInstalledFeature("DualStapleKey"), 0) << "not in the table";
    EXPECT_EQ(getInstalledFeature(nullptr), 0);
}

TEST(InstallableOptions, LoadsOnceUntilUnloaded)
{
    InstalledOptionsGuard guard;
    QTemporaryDir folder;
    PpdFilePtr sample = OpenOrFail(SamplePpdPath());
    PpdFilePtr variant = OpenOrFail(WriteSampleVariant(folder, {{"Option8", "False"}}));
    EXPECT_TRUE(LoadInstallableOptions(sample.get(), _InstalledFeatures));
    EXPECT_FALSE(LoadInstallableOptions(variant.get(), _InstalledFeatures));
    EXPECT_EQ(getInstalledFeature("JobStorage"), 1) << "the second load changed nothing";

    UnloadInstallableOptions();
    EXPECT_EQ(getInstalledFeature("JobStorage"), 0);
    EXPECT_FALSE(getInstallableOptionValue(QStringLiteral("Option8"), nullptr));
    EXPECT_TRUE(LoadInstallableOptions(variant.get(), _InstalledFeatures));
    EXPECT_EQ(getInstalledFeature("JobStorage"), 0);
    EXPECT_EQ(getInstalledFeature("FaxKey"), 1);
}

TEST(InstallableOptions, ReadsTheDefaultsNotLeftoverMarks)
{
    InstalledOptionsGuard guard;
    PpdFilePtr ppd = OpenOrFail(TestPpdPath("latin1.ppd"));
    PpdMarkOption(ppd.get(), "Option4", "True");
    EXPECT_FALSE(LoadInstallableOptions(nullptr, _InstalledFeatures));
    EXPECT_TRUE(LoadInstallableOptions(ppd.get(), _InstalledFeatures));
    EXPECT_EQ(OptionValue("Option4"), QStringLiteral("False"));
    EXPECT_EQ(getInstalledFeature("SingleStapleKey"), 0);
}

TEST(InstallableOptions, FeatureValuesAndNames)
{
    InstalledOptionsGuard installed(SamplePpdPath());
    const Bundle bundle(QStringLiteral(ORVAN_PLUGIN_DIR), QStringLiteral("en"));
    long value = -1;
    EXPECT_TRUE(getInstallableOptionTicketValue("PostPrintInserterKey", &value));
    EXPECT_EQ(value, 10);
    EXPECT_TRUE(getInstallableOptionTicketValue("JobStorage", &value));
    EXPECT_EQ(value, 0);
    value = -1;
    EXPECT_FALSE(getInstallableOptionTicketValue("NoSuchFeature", &value));
    EXPECT_EQ(value, -1);

    EXPECT_EQ(CopyLocalizedStringForInstalledFeatureFromPlugin("SingleStapleKey", &bundle),
              QStringLiteral("1 Staple"));
    EXPECT_EQ(CopyLocalizedStringForInstalledFeatureFromPlugin("PostPrintInserterKey", &bundle),
              QStringLiteral("Post-Print Inserter"));
    EXPECT_EQ(CopyLocalizedStringForInstalledFeatureFromPlugin("JobStorage", &bundle), std::nullopt)
        << "no text key";
    EXPECT_EQ(CopyLocalizedStringForInstalledFeatureFromPlugin("SingleStapleKey", nullptr),
              std::nullopt);
}

TEST(InstallableOptions, AbsentFeatureHasNoValueOrName)
{
    QTemporaryDir folder;
    InstalledOptionsGuard noFinisher(WriteSampleVariant(folder, {{"Option4", "False"}}));
    const Bundle bundle(QStringLiteral(ORVAN_PLUGIN_DIR), QStringLiteral("en"));
    long value = -1;
    EXPECT_EQ(getInstalledFeature("SingleStapleKey"), 0);
    EXPECT_FALSE(getInstallableOptionTicketValue("SingleStapleKey", &value));
    EXPECT_EQ(CopyLocalizedStringForInstalledFeatureFromPlugin("SingleStapleKey", &bundle),
              std::nullopt);
}

TEST(InstallableOptions, RowsWithoutAnOptionAlwaysHold)
{
    constexpr _InstalledFeatureMap table[] = {
        {"Always", nullptr, nullptr, "1 Staple", 7},
        {"Either", "Option4", "False", nullptr, 1},
        {"Either", "Option1", "Tray3HiCap", nullptr, 2},
        {nullptr, nullptr, nullptr, nullptr, 0},
    };
    InstalledOptionsGuard guard;
    PpdFilePtr ppd = OpenOrFail(SamplePpdPath());
    LoadInstallableOptions(ppd.get(), table);
    long value = 0;
    EXPECT_EQ(getInstalledFeature("Always"), 1);
    EXPECT_EQ(getInstalledFeature("Either"), 1) << "any row of the feature suffices";
    EXPECT_TRUE(getInstallableOptionTicketValue("Either", &value));
    EXPECT_EQ(value, 2) << "the first row that holds";
}

TEST(DeviceMimic, PictureNameFollowsTraysAndFinisher)
{
    struct Case
    {
        const char* trays;
        const char* finisher;
        const char* picture;
    } const cases[] = {
        {"Tray2", "False", "Mimic_AQ_PLMS_2Tray.gif"},
        {"Tray1", "True", "Mimic_AQ_PLMS_1Tray_Finisher.gif"},
        {"Tray3", "False", "Mimic_AQ_PLMS_3Tray.gif"},
        {"Tray3HiCap", "True", "Mimic_AQ_PLMS_3TrayHC_Finisher.gif"},
        {"Tray4", "True", "Mimic_AQ_PLMS_4Tray_Finisher.gif"},
    };
    QTemporaryDir folder;
    for (const Case& c : cases) {
        InstalledOptionsGuard options(
            WriteSampleVariant(folder, {{"Option1", c.trays}, {"Option4", c.finisher}}));
        EXPECT_EQ(CopyDeviceMimicFilename(), QString::fromUtf8(c.picture));
    }
    InstalledOptionsGuard nothingLoaded;
    EXPECT_EQ(CopyDeviceMimicFilename(), QStringLiteral("Mimic_AQ_PLMS_.gif"));
}

class DeviceProfileTest : public ::testing::Test
{
protected:
    void SetUp() override { QDPFinalize(); }
    void TearDown() override { QDPFinalize(); }
    Bundle m_bundle{QStringLiteral(ORVAN_PLUGIN_DIR), QStringLiteral("en")};
};

TEST_F(DeviceProfileTest, FeaturesPropertiesAndSyntax)
{
    EXPECT_EQ(QDPGetFeature(QStringLiteral("Stapling")), nullptr) << "nothing before initialising";
    ASSERT_TRUE(QDPInitialize(&m_bundle));
    const PropertyValue* stapling = QDPGetFeature(QStringLiteral("Stapling"));
    ASSERT_NE(stapling, nullptr);
    EXPECT_EQ(QDPGetFeatureKeyword(stapling)->toString(), QStringLiteral("StapleLocation"));
    EXPECT_EQ(QDPGetFeatureDefaultValue(stapling)->toString(), QStringLiteral("None"));
    EXPECT_EQ(QDPGetFeatureSyntax(stapling, QStringLiteral("Number"))->toBool(), false);
    EXPECT_EQ(QDPGetFeatureProperty(stapling, QStringLiteral("InstallableOption"))->toString(),
              QStringLiteral("Option4"));
    EXPECT_EQ(QDPGetFeatureProperty(stapling, QStringLiteral("Nothing")), nullptr);
    EXPECT_EQ(QDPGetFeatureSyntax(nullptr, QStringLiteral("Default")), nullptr);

    const PropertyValue* copies = QDPGetFeature(QStringLiteral("Copies"));
    ASSERT_NE(copies, nullptr);
    EXPECT_EQ(QDPGetFeatureDefaultValue(copies)->toInteger(), 1);
}

TEST_F(DeviceProfileTest, FeaturesAndKeywordsByProperty)
{
    ASSERT_TRUE(QDPInitialize(&m_bundle));
    EXPECT_EQ(QDPGetFeaturesWithProperty(QStringLiteral("InstallableOption")).size(), 7u);
    const PropertyValue finisher = PropertyValue(QStringLiteral("Option4"));
    EXPECT_EQ(
        QDPGetFeaturesWithPropertyAndValue(QStringLiteral("InstallableOption"), &finisher).size(),
        3u);
    const PropertyValue keywords =
        QDPGetKeywordsWithPropertyAndValue(QStringLiteral("InstallableOption"), &finisher);
    PropertyValue expected = PropertyValue::array();
    for (const char* keyword :
         {"QVFold", "QVPunch", "StapleLocation"}) // by feature name: Folding, HolePunch, Stapling
        expected.append(QString::fromUtf8(keyword));
    EXPECT_EQ(keywords, expected);
    EXPECT_EQ(QDPGetFeaturesWithProperty(QStringLiteral("NoSuchProperty")).size(), 0u);
}

TEST_F(DeviceProfileTest, DefaultsAgreeWithTheSamplePrinter)
{
    ASSERT_TRUE(QDPInitialize(&m_bundle));
    PpdFilePtr ppd = OpenOrFail(SamplePpdPath());
    const PropertyValue features = QDPGetFeaturesWithProperty(QStringLiteral("Category"));
    ASSERT_GT(features.size(), 10u);
    for (const PropertyValue& feature : features.asArray()) {
        const QString keyword = QDPGetFeatureKeyword(&feature)->toString();
        const auto ppdDefault = PPDCopyDefaultChoice(ppd.get(), keyword);
        if (!ppdDefault)
            continue; // carried by the ticket, not the PPD
        EXPECT_EQ(QDPGetFeatureDefaultValue(&feature)->toString(), *ppdDefault)
            << qPrintable(keyword);
    }
}

TEST_F(DeviceProfileTest, MissingProfileLoadsNothing)
{
    QTemporaryDir empty;
    const Bundle bare(empty.path());
    EXPECT_FALSE(QDPInitialize(&bare));
    EXPECT_FALSE(QDPInitialize(nullptr));
    EXPECT_EQ(QDPGetFeaturesWithProperty(QStringLiteral("Category")).size(), 0u);
}

} // namespace
} // namespace orvan
