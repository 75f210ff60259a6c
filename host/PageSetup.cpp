#include "host/PageSetup.h"

#include "host/SheetLayout.h"
#include "settings/PageFormat.h"
#include "settings/PrintSession.h"
#include "submission/CopiesAndPages.h"

#include <algorithm>

namespace orvan {

namespace {

std::int32_t ticketInteger(const Ticket& ticket, const QString& key, std::int32_t fallback)
{
    return static_cast<std::int32_t>(ticket.integer(key, NumberType::SInt32).value_or(fallback));
}

} // namespace

QSizeF PageSetup::sheetSize() const
{
    const QSizeF upright(std::min(paper.points.width(), paper.points.height()),
                         std::max(paper.points.width(), paper.points.height()));
    return orientation == Orientation::Landscape ? upright.transposed() : upright;
}

void WritePageSetup(PrintSession& session, const PageSetup& setup, const QString& jobName)
{
    const QString& client = kPrintingManagerClient;
    Ticket& pageFormat = session.pageFormat();
    pageFormat.setItem(
        client, kOrientationKey,
        PropertyValue::integer(static_cast<std::int32_t>(setup.orientation), NumberType::SInt32));
    WritePaperToPageFormat(pageFormat, client, setup.paper.name, setup.paper.points);

    Ticket& settings = session.printSettings();
    const auto [columns, rows] = SheetGrid(setup.pagesPerSheet, setup.sheetSize());
    settings.setItem(client, kLayoutNUpKey, PropertyValue::boolean(setup.pagesPerSheet > 1));
    settings.setItem(client, kLayoutColumnsKey,
                     PropertyValue::integer(columns, NumberType::SInt32));
    settings.setItem(client, kLayoutRowsKey, PropertyValue::integer(rows, NumberType::SInt32));
    settings.setItem(
        client, kLayoutDirectionKey,
        PropertyValue::integer(static_cast<std::int32_t>(setup.order), NumberType::SInt32));
    settings.setItem(client, kCopyCollateKey, PropertyValue::boolean(setup.collate));
    settings.setItem(client, kReverseOrderKey, PropertyValue::boolean(setup.reverse));
    if (!jobName.isEmpty())
        settings.setItem(client, kJobNameKey, PropertyValue(jobName));
}

PageSetup ReadPageSetup(const PrintSession& session, const std::vector<PaperSize>& papers)
{
    PageSetup setup;
    const Ticket& pageFormat = session.pageFormat();
    const Ticket* paperInfo = pageFormat.subTicket(kPaperInfoTicketKey);
    const QString paperName =
        paperInfo ? paperInfo->string(kPaperNameKey).value_or(QString()) : QString();
    const auto named = std::find_if(papers.begin(), papers.end(), [&](const PaperSize& paper) {
        return paper.name == paperName;
    });
    if (named != papers.end())
        setup.paper = *named;
    else if (!papers.empty())
        setup.paper = papers.front();
    else if (const auto size = PaperSizeFromPageFormat(pageFormat))
        setup.paper = PaperSize{paperName, paperName, *size};
    if (ticketInteger(pageFormat, kOrientationKey, kPortraitOrientation) == kLandscapeOrientation)
        setup.orientation = Orientation::Landscape;

    const Ticket& settings = session.printSettings();
    if (settings.boolean(kLayoutNUpKey).value_or(false)) {
        const int count = ticketInteger(settings, kLayoutColumnsKey, 1) *
                          ticketInteger(settings, kLayoutRowsKey, 1);
        if (std::find(kPagesPerSheetChoices.begin(), kPagesPerSheetChoices.end(), count) !=
            kPagesPerSheetChoices.end())
            setup.pagesPerSheet = count;
    }
    const std::int32_t order = ticketInteger(settings, kLayoutDirectionKey, 1);
    if (order >= static_cast<std::int32_t>(PageOrder::LeftToRightTopToBottom) &&
        order <= static_cast<std::int32_t>(PageOrder::TopToBottomRightToLeft))
        setup.order = static_cast<PageOrder>(order);
    setup.collate = settings.boolean(kCopyCollateKey).value_or(true);
    setup.reverse = settings.boolean(kReverseOrderKey).value_or(false);
    return setup;
}

} // namespace orvan
