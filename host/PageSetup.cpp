#include "host/PageSetup.h"

#include "host/JobSubmission.h"
#include "host/SheetLayout.h"
#include "settings/PageFormat.h"
#include "settings/PrintSession.h"

#include <cups/cups.h>

#include <algorithm>

namespace orvan {

namespace {

struct PageOrderName
{
    PageOrder order;
    const char* layout;
};
constexpr PageOrderName kPageOrderNames[] = {
    {PageOrder::LeftToRightTopToBottom, "lrtb"},
    {PageOrder::RightToLeftTopToBottom, "rltb"},
    {PageOrder::TopToBottomLeftToRight, "tblr"},
    {PageOrder::TopToBottomRightToLeft, "tbrl"},
};

std::int32_t ticketInteger(const Ticket& ticket, const QString& key, std::int32_t fallback)
{
    return static_cast<std::int32_t>(ticket.integer(key, NumberType::SInt32).value_or(fallback));
}

} // namespace

QString PageOrderLayoutName(PageOrder order)
{
    for (const PageOrderName& row : kPageOrderNames)
        if (row.order == order)
            return QString::fromLatin1(row.layout);
    return QStringLiteral("lrtb");
}

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
    for (const PageOrderName& row : kPageOrderNames)
        if (static_cast<std::int32_t>(row.order) == order)
            setup.order = row.order;
    setup.collate = settings.boolean(kCopyCollateKey).value_or(true);
    setup.reverse = settings.boolean(kReverseOrderKey).value_or(false);
    return setup;
}

std::vector<std::pair<QString, QString>> PageSetupJobOptions(const PageSetup& setup)
{
    std::vector<std::pair<QString, QString>> options;
    if (!setup.paper.name.isEmpty())
        options.emplace_back(QStringLiteral("media"), setup.paper.name);
    options.emplace_back(QStringLiteral("orientation-requested"),
                         setup.orientation == Orientation::Landscape ? QStringLiteral("4")
                                                                     : QStringLiteral("3"));
    options.emplace_back(QStringLiteral("number-up"), QString::number(setup.pagesPerSheet));
    if (setup.pagesPerSheet > 1)
        options.emplace_back(QStringLiteral("number-up-layout"), PageOrderLayoutName(setup.order));
    options.emplace_back(QStringLiteral("multiple-document-handling"),
                         setup.collate ? QStringLiteral("separate-documents-collated-copies")
                                       : QStringLiteral("separate-documents-uncollated-copies"));
    options.emplace_back(QStringLiteral("outputorder"),
                         setup.reverse ? QStringLiteral("reverse") : QStringLiteral("normal"));
    return options;
}

void AddPageSetupAttributes(ipp_t* request, const PageSetup& setup)
{
    if (!request)
        return;
    if (!setup.paper.name.isEmpty())
        ippAddString(request, IPP_TAG_JOB, IPP_TAG_KEYWORD, "media", nullptr,
                     setup.paper.name.toUtf8().constData());
    ippAddInteger(request, IPP_TAG_JOB, IPP_TAG_ENUM, "orientation-requested",
                  setup.orientation == Orientation::Landscape ? IPP_ORIENT_LANDSCAPE
                                                              : IPP_ORIENT_PORTRAIT);
    ippAddInteger(request, IPP_TAG_JOB, IPP_TAG_INTEGER, "number-up", setup.pagesPerSheet);
    ippAddString(request, IPP_TAG_JOB, IPP_TAG_KEYWORD, "multiple-document-handling", nullptr,
                 setup.collate ? "separate-documents-collated-copies"
                               : "separate-documents-uncollated-copies");
    if (setup.reverse)
        ippAddString(request, IPP_TAG_JOB, IPP_TAG_KEYWORD, "page-delivery", nullptr,
                     "reverse-order-face-down");
}

} // namespace orvan
