#include "paperoutput/PaperOutputIcons.h"

namespace orvan {

QString JobTypeIconName(std::int32_t jobType)
{
    switch (jobType) {
    case kJobTypeNormal:
        return QStringLiteral("JobType_NormalPrint.gif");
    case kJobTypeHold:
        return QStringLiteral("JobType_HoldJob.gif");
    case kJobTypeSavedJob:
        return QStringLiteral("JobType_SavedJob.gif");
    case kJobTypeLANFax:
        return QStringLiteral("JobType_Fax.gif");
    case kJobTypeSecure:
        return QStringLiteral("JobType_SecurePrint.gif");
    case kJobTypeDelayed:
        return QStringLiteral("JobType_DelayPrint.gif");
    case kJobTypeSampleSet:
        return QStringLiteral("JobType_SampleSet.gif");
    case kJobTypeBackgroundForm:
        return QStringLiteral("JobType_BackgroundForm.gif");
    default:
        return {};
    }
}

QString TwoSidedIconName(const PaperOutputRecord& record)
{
    if (record.bookletLayoutOn() || record.twoSided == kDuplexLongEdge)
        return QStringLiteral("2SidedPrinting_2Sided.gif");
    if (record.twoSided == kDuplexShortEdge)
        return QStringLiteral("2SidedPrinting_2SidedFlip.gif");
    return QStringLiteral("2SidedPrinting_1Sided.gif");
}

QString FinishingIconName(const PaperOutputRecord& record)
{
    const bool layout = record.bookletLayoutOn();
    switch (record.fold) {
    case kCFold:
        return QStringLiteral("OfficeFinishing_CFold.gif");
    case kZFold:
        return QStringLiteral("OfficeFinishing_ZFold.gif");
    case kZFoldHalfSheet:
        return QStringLiteral("ProductionFinishing_ZFold_Half_Left.gif");
    // The capitalisation of these names differs on purpose: they are the
    // files' names.
    case kBookletFold:
        return layout ? QStringLiteral("OfficeFinishing_Bklt_Fold_Layout.gif")
                      : QStringLiteral("OfficeFinishing_Bklt_Fold.gif");
    case kBookletFoldStaple:
        return layout ? QStringLiteral("OfficeFinishing_Bklt_Fold&Stpl_Layout.gif")
                      : QStringLiteral("OfficeFinishing_BKlt_Fold&Stple.gif");
    default:
        break;
    }
    QString punch;
    switch (record.punch) {
    case kTwoHolePunch:
        punch = QStringLiteral("2Hp");
        break;
    case kThreeHolePunch:
        punch = QStringLiteral("3Hp");
        break;
    case kFourHolePunch:
        punch = QStringLiteral("4Hp");
        break;
    default:
        break;
    }
    QString staples;
    if (record.singleStaple != kFinishingNone)
        staples = QStringLiteral("1St");
    else if (record.dualStaple != kFinishingNone)
        staples = QStringLiteral("2St");
    else if (record.multipleStaple != kFinishingNone)
        staples = QStringLiteral("4St");
    if (!staples.isEmpty())
        return QStringLiteral("OfficeFinishing_") + staples +
               (punch.isEmpty() ? QString() : QLatin1Char('&') + punch) + QStringLiteral(".gif");
    if (!punch.isEmpty())
        return QStringLiteral("OfficeFinishing_") + punch + QStringLiteral(".gif");
    if (layout)
        return QStringLiteral("OfficeFinishing_Bklt_Layout.gif");
    return QStringLiteral("OfficeFinishing_None.gif");
}

QString OutputColorIconName(std::int32_t outputColor)
{
    switch (outputColor) {
    case 2:
        return QStringLiteral("OutputColor_Color.gif");
    case 1:
        return QStringLiteral("OutputColor_BlackandWhite.gif");
    default:
        return QStringLiteral("OutputColor_PrnDef.gif");
    }
}

QString ImageQualityIconName(std::int32_t quality)
{
    switch (quality) {
    case 2:
        return QStringLiteral("ImageOptions_ImgQual_Standard.gif");
    case 3:
        return QStringLiteral("ImageOptions_ImgQual_Enhanced.gif");
    case 6:
        return QStringLiteral("ImageOptions_ImgQual_Photo.gif");
    case 8:
        return QStringLiteral("ImageOptions_ImgQual_FastColor.gif");
    default:
        return {};
    }
}

QString PaperOutputImagePath(const QString& imageName)
{
    QString stem = imageName;
    if (stem.endsWith(QLatin1String(".gif")))
        stem.chop(4);
    return QStringLiteral("images/paperoutput/") + stem + QStringLiteral(".png");
}

} // namespace orvan
