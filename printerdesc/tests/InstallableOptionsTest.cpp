// Installed hardware from the PPD, the features gated on it, the printer
// picture and the device profile.
#include "PpdTestSupport.h"

#include "printerdesc/DeviceProfile.h"
#include "settings/Bundle.h"

namespace orvan {
namespace {

using testing::InstalledOptionsGuard;
using testing::kSamplePpd;
using testing::OpenOrFail;
using testing::TestPpdPath;
using testing::WriteSampleVariant;

TEST(InstallableOptions, LoadedOnceFromTheDefaultsUntilUnloaded)
{
    InstalledOptionsGuard guard;
    QTemporaryDir folder;
    PpdFilePtr sample = OpenOrFail(kSamplePpd);
    PpdFilePtr noStorage = OpenOrFail(WriteSampleVariant(folder, {{"Option8", "False"}}));
    EXPECT_FALSE(LoadInstallableOptions(nullptr, _InstalledFeatures));
    EXPECT_TRUE(LoadInstallableOptions(sample.get(), _InstalledFeatures));
    EXPECT_FALSE(LoadInstallableOptions(noStorage.get(), _InstalledFeatures)) << "loaded already";
    QString trays;
    EXPECT_TRUE(getInstallableOptionValue("Option1", &trays));
    EXPECT_EQ(trays, "Tray3HiCap");
    EXPECT_FALSE(getInstallableOptionValue("PageSize", &trays)) << "not an installable option";
    EXPECT_EQ(getInstalledFeature("JobStorage"), 1);

    UnloadInstallableOptions();
    EXPECT_EQ(getInstalledFeature("JobStorage"), 0);
    EXPECT_FALSE(getInstallableOptionValue("Option8", nullptr));
    EXPECT_TRUE(LoadInstallableOptions(noStorage.get(), _InstalledFeatures));
    EXPECT_EQ(getInstalledFeature("JobStorage"), 0);
    EXPECT_EQ(getInstalledFeature("FaxKey"), 1);
}

TEST(InstallableOptions, ReadsTheDefaultsNotLeftoverMarks)
{
    InstalledOptionsGuard guard;
    PpdFilePtr ppd = OpenOrFail(TestPpdPath("latin1.ppd"));
    PpdMarkOption(ppd.get(), "Option4", "True");
    EXPECT_TRUE(LoadInstallableOptions(ppd.get(), _InstalledFeatures));
    EXPECT_EQ(getInstalledFeature("SingleStapleKey"), 0);
}

TEST(InstallableOptions, FeatureValuesAndTexts)
{
    QTemporaryDir folder;
    const QString noFinisher = WriteSampleVariant(folder, {{"Option4", "False"}});
    const Bundle bundle(ORVAN_PLUGIN_DIR, "en");
    const std::tuple<QString, const char*, std::optional<long>, std::optional<QString>> cases[] = {
        {kSamplePpd, "PostPrintInserterKey", 10, "Post-Print Inserter"},
        {kSamplePpd, "SingleStapleKey", 0, "1 Staple"},
        {kSamplePpd, "JobStorage", 0, std::nullopt}, // no text key
        {kSamplePpd, "NoSuchFeature", std::nullopt, std::nullopt},
        {noFinisher, "SingleStapleKey", std::nullopt, std::nullopt},
    };
    for (const auto& [ppd, feature, expected, text] : cases) {
        InstalledOptionsGuard options(ppd);
        long value = -1;
        EXPECT_EQ(getInstalledFeature(feature), expected ? 1 : 0) << feature;
        EXPECT_EQ(getInstallableOptionTicketValue(feature, &value), expected.has_value());
        EXPECT_EQ(value, expected.value_or(-1)) << feature;
        EXPECT_EQ(CopyLocalizedStringForInstalledFeatureFromPlugin(feature, &bundle), text);
    }
}

TEST(InstallableOptions, RowsWithoutAnOptionAlwaysHold)
{
    constexpr _InstalledFeatureMap table[] = {
        {"Always", nullptr, nullptr, "1 Staple", 7},
        {"Either", "Option4", "False", nullptr, 1},
        {"Either", "Option1", "Tray3HiCap", nullptr, 2},
        {},
    };
    InstalledOptionsGuard guard;
    LoadInstallableOptions(OpenOrFail(kSamplePpd).get(), table);
    long value = 0;
    EXPECT_EQ(getInstalledFeature("Always"), 1);
    EXPECT_TRUE(getInstallableOptionTicketValue("Either", &value)) << "any row suffices";
    EXPECT_EQ(value, 2) << "the first row that holds";
}

TEST(DeviceMimic, PictureNameFollowsTraysAndFinisher)
{
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"Tray2", "False", "Mimic_AQ_PLMS_2Tray.gif"},
        {"Tray1", "True", "Mimic_AQ_PLMS_1Tray_Finisher.gif"},
        {"Tray3HiCap", "True", "Mimic_AQ_PLMS_3TrayHC_Finisher.gif"},
    };
    QTemporaryDir folder;
    for (const auto& [trays, finisher, picture] : cases) {
        InstalledOptionsGuard options(
            WriteSampleVariant(folder, {{"Option1", trays}, {"Option4", finisher}}));
        EXPECT_EQ(CopyDeviceMimicFilename(), picture);
    }
    InstalledOptionsGuard nothingLoaded;
    EXPECT_EQ(CopyDeviceMimicFilename(), "Mimic_AQ_PLMS_.gif");
}

class DeviceProfileTest : public ::testing::Test
{
protected:
    void SetUp() override { QDPFinalize(); }
    void TearDown() override { QDPFinalize(); }
    Bundle m_bundle{ORVAN_PLUGIN_DIR, "en"};
};

TEST_F(DeviceProfileTest, FeaturesPropertiesAndKeywords)
{
    EXPECT_EQ(QDPGetFeature("Stapling"), nullptr) << "nothing before initialising";
    ASSERT_TRUE(QDPInitialize(&m_bundle));
    const PropertyValue* stapling = QDPGetFeature("Stapling");
    ASSERT_NE(stapling, nullptr);
    EXPECT_EQ(QDPGetFeatureProperty(stapling, "InstallableOption")->toString(), "Option4");
    EXPECT_EQ(QDPGetFeatureProperty(stapling, "Nothing"), nullptr);
    // By feature name: Folding, HolePunch, Stapling.
    const PropertyValue finisher("Option4");
    PropertyValue keywords = PropertyValue::array();
    for (const char* keyword : {"QVFold", "QVPunch", "StapleLocation"})
        keywords.append(PropertyValue(keyword));
    EXPECT_EQ(QDPGetKeywordsWithPropertyAndValue("InstallableOption", &finisher), keywords);
    EXPECT_EQ(QDPGetFeaturesWithProperty("InstallableOption").size(), 7u);

    QTemporaryDir empty;
    const Bundle bare(empty.path());
    QDPFinalize();
    EXPECT_FALSE(QDPInitialize(&bare));
    EXPECT_EQ(QDPGetFeaturesWithProperty("Category").size(), 0u);
}

} // namespace
} // namespace orvan
