#include "imagequality/ImageOptionsModel.h"

#include "printerdesc/PPDAccess.h"
#include "settings/PrintSession.h"
#include "settings/Ticket.h"
#include "shell/PanelSync.h"
#include "shell/PanelText.h"

namespace orvan {

namespace {

// Resolution values of the PPD resolution map that the 1200 and 1800 dpi
// pictures stand for; every other value shows the 600 dpi picture.
constexpr std::int32_t kResolution1200x600 = 3;
constexpr std::int32_t kResolution1200 = 4;
constexpr std::int32_t kResolution1800 = 7;

} // namespace

ImageOptionsModel::ImageOptionsModel()
{
    InvertImageInitialize(&m_invertImage);
}

void ImageOptionsModel::load(ppd_file_t* ppd)
{
    m_ppd = ppd;
    m_resolutionMenu.clear();
    PPDPopulateMenuWithChoices(&m_resolutionMenu, ppd, kResolutionKeyword, 0, false);
}

Status ImageOptionsModel::sync(PrintSession* session, bool direction, InvertImageControls controls)
{
    Ticket* printSettings = nullptr;
    if (const Status error = GetPrintSettingsForSync(session, &printSettings))
        return error;
    if (direction) {
        syncResolutionToUI(*printSettings);
        syncTonerSaverToUI(*printSettings);
    } else {
        syncResolutionToTicket(*printSettings);
        syncTonerSaverToTicket(*printSettings);
    }
    return InvertImageSync(&m_invertImage, printSettings, direction, controls);
}

void ImageOptionsModel::syncResolutionToTicket(Ticket& ticket) const
{
    PPDSetCurrentChoiceForTicketValue(&ticket, kResolutionKeyword, m_resolution);
}

void ImageOptionsModel::syncTonerSaverToTicket(Ticket& ticket) const
{
    PPDSetCurrentChoiceForTicketValue(&ticket, kTonerSaverKeyword, m_tonerSaver);
}

void ImageOptionsModel::syncResolutionToUI(const Ticket& ticket)
{
    PPDGetTicketValueForChoiceOrDefault(m_ppd, &ticket, kResolutionKeyword, &m_resolution);
}

void ImageOptionsModel::syncTonerSaverToUI(const Ticket& ticket)
{
    PPDGetTicketValueForChoiceOrDefault(m_ppd, &ticket, kTonerSaverKeyword, &m_tonerSaver);
}

// The pictures were drawn for this panel as PNG files (the toolkit writes no
// GIF), under the names the panel has always used with ".png" for ".gif".
QString ImageOptionsModel::resolutionPicture() const
{
    switch (m_resolution) {
    case kResolution1800:
        return QStringLiteral("ImageOptions_Resolution_1800.png");
    case kResolution1200:
    case kResolution1200x600:
        return QStringLiteral("ImageOptions_Resolution_1200.png");
    default:
        return QStringLiteral("ImageOptions_Resolution_600.png");
    }
}

QString ImageOptionsModel::tonerSaverPicture() const
{
    return tonerSaverOn() ? QStringLiteral("ImageOptions_TonerSaver_On.png")
                          : QStringLiteral("ImageOptions_TonerSaver_Off.png");
}

QString ImageOptionsModel::invertImagePicture() const
{
    return m_invertImage.mirrorImage ? QStringLiteral("ImageOptions_InvertImage_Mirror.png")
                                     : QStringLiteral("ImageOptions_InvertImage_Off.png");
}

void ImageOptionsModel::appendSummary(const Bundle* bundle, PropertyValue* titles,
                                      PropertyValue* values) const
{
    const QString on = PanelText(bundle, QStringLiteral("On"));
    const QString off = PanelText(bundle, QStringLiteral("Off"));
    if (const MenuItem* item = m_resolutionMenu.item(resolutionItem()))
        AppendSummaryPair(titles, values, SummaryTitleFromLabel(bundle, kResolutionLabelKey),
                          item->text);
    AppendSummaryPair(titles, values, SummaryTitleFromLabel(bundle, kTonerSaverLabelKey),
                      tonerSaverOn() ? on : off);
    AppendSummaryPair(titles, values, SummaryTitleFromLabel(bundle, kNegativeImageTitleKey),
                      m_invertImage.negativeImage ? on : off);
    AppendSummaryPair(titles, values, SummaryTitleFromLabel(bundle, kMirrorImageTitleKey),
                      m_invertImage.mirrorImage ? on : off);
}

} // namespace orvan
