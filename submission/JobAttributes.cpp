#include "submission/JobAttributes.h"

#include "fax/FaxOptions.h"
#include "fax/FaxRecipient.h"
#include "paperoutput/JobNotesModel.h"
#include "paperoutput/PaperOutputRecord.h"
#include "settings/PageFormat.h"
#include "specialpages/Cover.h"
#include "specialpages/ExceptionPage.h"
#include "specialpages/Insert.h"
#include "specialpages/SpecialPageKeys.h"
#include "submission/CopiesAndPages.h"
#include "submission/IppTables.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QUrl>

#include <cmath>

namespace orvan::submission {

namespace {

constexpr double kHundredthsOfMmPerPoint = 2540.0 / 72.0;

bool HasMembers(const IppPtr& collection)
{
    return collection && ippFirstAttribute(collection.get()) != nullptr;
}

void AddWord(ipp_t* ipp, ipp_tag_t group, const char* name, const IppWord& word)
{
    ippAddString(ipp, group, word.isName ? IPP_TAG_NAME : IPP_TAG_KEYWORD, name, nullptr,
                 word.text.toUtf8().constData());
}

void AddKeyword(ipp_t* ipp, ipp_tag_t group, const char* name, const QString& keyword)
{
    ippAddString(ipp, group, IPP_TAG_KEYWORD, name, nullptr, keyword.toUtf8().constData());
}

void AddText(ipp_t* ipp, ipp_tag_t group, const char* name, const QString& text)
{
    ippAddString(ipp, group, IPP_TAG_TEXT, name, nullptr, text.toUtf8().constData());
}

// Adds a collection (ippAddCollection copies it) unless it has no members.
void AddCollection(ipp_t* ipp, ipp_tag_t group, const char* name, const IppPtr& collection)
{
    if (HasMembers(collection))
        ippAddCollection(ipp, group, name, collection.get());
}

void AddCollections(ipp_t* ipp, const char* name, const std::vector<IppPtr>& collections)
{
    std::vector<const ipp_t*> values;
    for (const IppPtr& collection : collections)
        if (HasMembers(collection))
            values.push_back(collection.get());
    if (!values.empty())
        ippAddCollections(ipp, IPP_TAG_JOB, name, static_cast<int>(values.size()), values.data());
}

void AddDateTime(ipp_t* ipp, const char* name, const QDateTime& when)
{
    ippAddDate(ipp, IPP_TAG_JOB, name, ippTimeToDate(static_cast<time_t>(when.toSecsSinceEpoch())));
}

// Delayed-print and fax send times count seconds from 1904-01-01 00:00 local time.
QDateTime FromSeconds1904(std::int64_t seconds)
{
    return QDateTime(QDate(1904, 1, 1), QTime(0, 0)).addSecs(seconds);
}

// A special page's stock inherits every attribute it leaves unset from the job's.
std::int32_t Inherit(std::int32_t own, std::int32_t job)
{
    return own != kUnset ? own : job;
}

IppPtr MediaCol(const Stock& stock, const Stock* jobStock)
{
    static const Stock kNoStock(nullptr);
    const Stock& job = jobStock ? *jobStock : kNoStock;
    IppPtr col(ippNew());
    const Stock& sized = stock.size() != kUnset ? stock : job;
    if (const auto size = MediaSize(sized.size(), sized.width(), sized.length())) {
        const IppPtr mediaSize(ippNew());
        ippAddInteger(mediaSize.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "x-dimension", size->first);
        ippAddInteger(mediaSize.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "y-dimension", size->second);
        ippAddCollection(col.get(), IPP_TAG_ZERO, "media-size", mediaSize.get());
    }
    const Stock& typed = stock.type() != kUnset ? stock : job;
    if (const auto type = MediaType(typed.type(), typed.customType()))
        AddWord(col.get(), IPP_TAG_ZERO, "media-type", *type);
    const Stock& coloured = stock.color() != kUnset ? stock : job;
    if (const auto color = MediaColor(coloured.color(), coloured.customColor()))
        AddWord(col.get(), IPP_TAG_ZERO, "media-color", *color);
    if (const auto source = MediaSource(Inherit(stock.source(), job.source())))
        AddWord(col.get(), IPP_TAG_ZERO, "media-source", *source);
    if (const std::int32_t weight = Inherit(stock.weight(), job.weight());
        weight != kUnset && weight > 0)
        ippAddInteger(col.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "media-weight-metric", weight);
    const QString info = !stock.description().isEmpty() ? stock.description() : stock.customName();
    if (!info.isEmpty())
        AddText(col.get(), IPP_TAG_ZERO, "media-info", info);
    return col;
}

// The paper the page setup chose, for a job whose stock names no size.
IppPtr PageSetupMediaCol(const PrintSession& session)
{
    const Ticket* paperInfo = session.pageFormat().subTicket(kPaperInfoTicketKey);
    const PropertyValue* rect = paperInfo ? paperInfo->array(kUnadjustedPaperRectKey) : nullptr;
    if (!rect || rect->size() != 4)
        return nullptr;
    const PropertyArray& sides = rect->asArray();
    const auto top = sides[0].toReal(), left = sides[1].toReal(), bottom = sides[2].toReal(),
               right = sides[3].toReal();
    if (!top || !left || !bottom || !right || *right <= *left || *bottom <= *top)
        return nullptr;
    IppPtr col(ippNew());
    const IppPtr mediaSize(ippNew());
    ippAddInteger(mediaSize.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "x-dimension",
                  static_cast<int>(std::lround((*right - *left) * kHundredthsOfMmPerPoint)));
    ippAddInteger(mediaSize.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "y-dimension",
                  static_cast<int>(std::lround((*bottom - *top) * kHundredthsOfMmPerPoint)));
    ippAddCollection(col.get(), IPP_TAG_ZERO, "media-size", mediaSize.get());
    return col;
}

QString PpdChoice(const Ticket& settings, const char* keyword)
{
    const PropertyValue* choice = settings.ppdDictionary().find(QString::fromLatin1(keyword));
    return choice ? choice->toString() : QString();
}

std::optional<std::int64_t> Plex(const Ticket& settings)
{
    if (const auto plex = settings.integer(kFinishingDuplexKey))
        return plex;
    if (const auto plex = settings.integer(kDuplexingKey))
        return plex;
    const QString duplex = PpdChoice(settings, "Duplex");
    if (duplex == QLatin1String("None"))
        return 1;
    if (duplex == QLatin1String("DuplexNoTumble"))
        return 2;
    if (duplex == QLatin1String("DuplexTumble"))
        return 3;
    return std::nullopt;
}

void AddFinishings(ipp_t* ipp, const Ticket& settings)
{
    std::vector<int> finishings;
    bool chosen = false; // the ticket says something about finishing, even "none"
    for (const char* keyword : {"StapleLocation", "QVPunch", "QVFold", "Jog"}) {
        const QString choice = PpdChoice(settings, keyword);
        chosen = chosen || !choice.isEmpty();
        if (const auto finishing = Finishing(QString::fromLatin1(keyword), choice))
            finishings.push_back(*finishing);
    }
    if (!chosen)
        return;
    if (finishings.empty())
        finishings.push_back(kNoFinishing);
    ippAddIntegers(ipp, IPP_TAG_JOB, IPP_TAG_ENUM, "finishings",
                   static_cast<int>(finishings.size()), finishings.data());
    std::vector<IppPtr> templates;
    for (int finishing : finishings) {
        IppPtr col(ippNew());
        AddKeyword(col.get(), IPP_TAG_ZERO, "finishing-template", FinishingTemplate(finishing));
        templates.push_back(std::move(col));
    }
    AddCollections(ipp, "finishings-col", templates);
}

void AddSpecialPages(ipp_t* ipp, const Ticket& settings, const Stock* jobStock)
{
    const std::pair<const QString&, const char*> covers[] = {{kFrontCoverKey, "cover-front"},
                                                             {kBackCoverKey, "cover-back"}};
    for (const auto& [key, name] : covers) {
        const PropertyValue* dictionary = settings.dictionary(key);
        if (!dictionary)
            continue;
        const Cover cover(dictionary);
        IppPtr col(ippNew());
        if (const auto type = CoverType(cover.sidesImaged()))
            AddKeyword(col.get(), IPP_TAG_ZERO, "cover-type", *type);
        AddCollection(col.get(), IPP_TAG_ZERO, "media-col", MediaCol(cover.stock(), jobStock));
        AddCollection(ipp, IPP_TAG_JOB, name, col);
    }

    std::vector<IppPtr> inserts;
    if (const PropertyValue* list = settings.array(kInsertListKey))
        for (const PropertyValue& dictionary : list->asArray()) {
            const Insert insert(&dictionary);
            IppPtr col(ippNew());
            ippAddInteger(col.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "insert-after-page-number",
                          std::max(insert.startPage(), 0));
            ippAddInteger(col.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "insert-count",
                          std::max(insert.quantity(), 1));
            AddCollection(col.get(), IPP_TAG_ZERO, "media-col", MediaCol(insert.stock(), jobStock));
            inserts.push_back(std::move(col));
        }
    AddCollections(ipp, "insert-sheet", inserts);

    std::vector<IppPtr> overrides;
    if (const PropertyValue* list = settings.array(kExceptionListKey))
        for (const PropertyValue& dictionary : list->asArray()) {
            const ExceptionPage page(&dictionary);
            if (page.startPage() < 1 || page.endPage() < page.startPage())
                continue; // a range no page falls in
            IppPtr col(ippNew());
            ippAddRange(col.get(), IPP_TAG_ZERO, "pages", page.startPage(), page.endPage());
            AddCollection(col.get(), IPP_TAG_ZERO, "media-col", MediaCol(page.stock(), jobStock));
            if (const auto sides = Sides(page.plex()))
                AddKeyword(col.get(), IPP_TAG_ZERO, "sides", *sides);
            overrides.push_back(std::move(col));
        }
    AddCollections(ipp, "overrides", overrides);
}

// The digits a fax number is dialled with, as a tel: URI.
QString TelUri(const QString& faxNumber)
{
    const QString digits = CopyDialingStringFromFaxNumber(faxNumber);
    if (digits.isEmpty())
        return {};
    return QStringLiteral("tel:") + QString::fromLatin1(QUrl::toPercentEncoding(digits, "*#ABCD"));
}

void AddFax(ipp_t* ipp, const Ticket& settings)
{
    const PropertyValue* options = settings.dictionary(kFaxOptionsKey);
    const auto option = [options](const QString& key) {
        return options ? options->find(key) : nullptr;
    };
    const PropertyValue* prefix = option(kFaxDialingPrefixKey);
    std::vector<IppPtr> destinations;
    if (const PropertyValue* recipients = settings.array(kFaxRecipientListKey))
        for (const PropertyValue& recipient : recipients->asArray()) {
            const PropertyValue* number = recipient.find(kFaxNumberKey);
            const QString uri = number ? TelUri(number->toString()) : QString();
            if (uri.isEmpty())
                continue;
            IppPtr col(ippNew());
            ippAddString(col.get(), IPP_TAG_ZERO, IPP_TAG_URI, "destination-uri", nullptr,
                         uri.toUtf8().constData());
            if (prefix && !prefix->toString().isEmpty())
                AddText(col.get(), IPP_TAG_ZERO, "pre-dial-string", prefix->toString());
            destinations.push_back(std::move(col));
        }
    AddCollections(ipp, "destination-uris", destinations);

    if (const PropertyValue* confirmation = option(kFaxConfirmationSheetKey);
        confirmation && confirmation->toBool())
        ippAddBoolean(ipp, IPP_TAG_JOB, "confirmation-sheet-print", *confirmation->toBool());
    if (const PropertyValue* coverSheet = option(kFaxCoverSheetKey);
        coverSheet && coverSheet->toBool().value_or(false)) {
        IppPtr col(ippNew());
        if (const PropertyValue* notes = option(kFaxCoverSheetNotesKey);
            notes && !notes->toString().isEmpty())
            AddText(col.get(), IPP_TAG_ZERO, "message", notes->toString());
        if (const PropertyValue* sender = option(kFaxCoverSheetSenderKey);
            sender && !sender->toString().isEmpty())
            ippAddString(col.get(), IPP_TAG_ZERO, IPP_TAG_NAME, "from-name", nullptr,
                         sender->toString().toUtf8().constData());
        AddCollection(ipp, IPP_TAG_JOB, "cover-sheet-info", col);
    }
    if (const PropertyValue* sendTime = option(kFaxSendTimeKey))
        if (const auto seconds = sendTime->toInteger())
            AddDateTime(ipp, "job-hold-until-time", FromSeconds1904(*seconds));
    if (const PropertyValue* resolution = option(kFaxResolutionKey)) {
        const int dpi[][2] = {{200, 100}, {200, 200}, {400, 400}};
        const auto value = resolution->toInteger().value_or(0);
        if (value >= 1 && value <= 3)
            ippAddResolution(ipp, IPP_TAG_JOB, "printer-resolution", IPP_RES_PER_INCH,
                             dpi[value - 1][0], dpi[value - 1][1]);
    }
}

// The folder of a saved job: the last part of its location.
QString StorageGroup(const QString& location)
{
    const QStringList parts = location.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    return parts.isEmpty() || parts.last().endsWith(QLatin1Char(':')) ? QString() : parts.last();
}

// A fax job's resolution is the fax resolution, not the print resolution.
void AddImageQuality(ipp_t* ipp, const Ticket& settings, bool withResolution)
{
    static const QRegularExpression dpi(QStringLiteral("^(\\d+)(?:x(\\d+))?dpi$"));
    if (const auto match = dpi.match(PpdChoice(settings, "Resolution"));
        withResolution && match.hasMatch()) {
        const int x = match.captured(1).toInt();
        const int y = match.captured(2).isEmpty() ? x : match.captured(2).toInt();
        ippAddResolution(ipp, IPP_TAG_JOB, "printer-resolution", IPP_RES_PER_INCH, x, y);
    }
    std::optional<int> quality = PrintQuality(PpdChoice(settings, "JCLPrintQuality"));
    if (PpdChoice(settings, "QVEconomode") == QLatin1String("Draft"))
        quality = 3;
    if (quality)
        ippAddInteger(ipp, IPP_TAG_JOB, IPP_TAG_ENUM, "print-quality", *quality);
}

void AddPageSetup(ipp_t* ipp, const PrintSession& session)
{
    // Portrait, landscape, reverse portrait, reverse landscape.
    constexpr int kOrientations[] = {3, 4, 6, 5};
    const auto orientation = session.pageFormat().integer(kOrientationKey, NumberType::SInt32);
    if (orientation && *orientation >= 1 && *orientation <= 4)
        ippAddInteger(ipp, IPP_TAG_JOB, IPP_TAG_ENUM, "orientation-requested",
                      kOrientations[*orientation - 1]);
    const Ticket& settings = session.printSettings();
    const auto rows = settings.integer(kLayoutRowsKey),
               columns = settings.integer(kLayoutColumnsKey);
    if (rows && columns && *rows >= 1 && *columns >= 1 && *rows * *columns > 1) {
        ippAddInteger(ipp, IPP_TAG_JOB, IPP_TAG_INTEGER, "number-up",
                      static_cast<int>(*rows * *columns));
        // The order the pages fill a sheet, by the layout direction (1 to 4).
        constexpr const char* kLayouts[] = {"lrtb", "rltb", "tblr", "tbrl"};
        const auto direction = settings.integer(kLayoutDirectionKey, NumberType::SInt32);
        if (direction && *direction >= 1 && *direction <= 4)
            ippAddString(ipp, IPP_TAG_JOB, IPP_TAG_KEYWORD, "number-up-layout", nullptr,
                         kLayouts[*direction - 1]);
    }
    if (const auto collate = settings.boolean(kCopyCollateKey))
        ippAddString(ipp, IPP_TAG_JOB, IPP_TAG_KEYWORD, "multiple-document-handling", nullptr,
                     *collate ? "separate-documents-collated-copies"
                              : "separate-documents-uncollated-copies");
    if (settings.boolean(kReverseOrderKey).value_or(false))
        ippAddString(ipp, IPP_TAG_JOB, IPP_TAG_KEYWORD, "page-delivery", nullptr,
                     "reverse-order-face-down");
}

} // namespace

JobDescription DescribeJob(const PrintSession& session, const QString& documentName)
{
    const Ticket& settings = session.printSettings();
    JobDescription job;
    for (const auto& [keyword, choice] : settings.ppdDictionary().asDictionary())
        if (choice.isString() && !choice.toString().isEmpty())
            job.cupsOptions.emplace_back(keyword, choice.toString());
    if (const auto sender = settings.string(kJobNotesSenderNameKey); sender && !sender->isEmpty())
        job.cupsOptions.emplace_back(QStringLiteral("job-notes-sender"), *sender);
    if (const auto recipient = settings.string(kJobNotesRecipientKey);
        recipient && !recipient->isEmpty())
        job.cupsOptions.emplace_back(QStringLiteral("job-notes-recipient"), *recipient);

    job.attributes.reset(ippNew());
    ipp_t* ipp = job.attributes.get();
    const PropertyValue* jobType = settings.dictionary(kJobTypeKey);
    const auto typeItem = [jobType](const QString& key) {
        return jobType ? jobType->find(key) : nullptr;
    };
    const std::int64_t type =
        typeItem(kJobTypeValueKey) ? typeItem(kJobTypeValueKey)->toInteger().value_or(1) : 1;

    // Operation attributes.
    QString name = settings.boolean(kJobNotesUseJobNameKey).value_or(false)
                       ? QString()
                       : settings.string(kJobNotesJobNameKey).value_or(QString());
    if (const PropertyValue* saved = typeItem(kSavedJobNameKey);
        type == kJobTypeSavedJob && saved && !saved->toString().isEmpty() &&
        !(typeItem(kUseJobNameKey) && typeItem(kUseJobNameKey)->toBool().value_or(false)))
        name = saved->toString();
    if (name.isEmpty())
        name = documentName;
    if (!name.isEmpty())
        ippAddString(ipp, IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                     name.toUtf8().constData());
    const PropertyValue* passcode = typeItem(kSecurePrintPasswordKey);
    if ((type == kJobTypeSecure || type == kJobTypeSavedJob) && passcode &&
        !passcode->toString().isEmpty()) {
        const QByteArray bytes = passcode->toString().toUtf8();
        ippAddOctetString(ipp, IPP_TAG_OPERATION, "job-password", bytes.constData(),
                          static_cast<int>(bytes.size()));
        ippAddString(ipp, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "job-password-encryption", nullptr,
                     "none");
    }

    // Job-template attributes.
    ippAddInteger(ipp, IPP_TAG_JOB, IPP_TAG_INTEGER, "copies", CopiesFromTicket(settings));
    if (const auto [first, last] = PageRangeFromTicket(settings);
        first != 1 || last != kAllPagesLast)
        ippAddRange(ipp, IPP_TAG_JOB, "page-ranges", first, last);

    const PropertyValue* stockDictionary = settings.dictionary(kJobLevelStockKey);
    const std::optional<Stock> jobStock =
        stockDictionary ? std::optional<Stock>(Stock(stockDictionary)) : std::nullopt;
    IppPtr mediaCol = jobStock ? MediaCol(*jobStock, nullptr) : IppPtr(ippNew());
    if (!ippFindAttribute(mediaCol.get(), "media-size", IPP_TAG_BEGIN_COLLECTION))
        if (const IppPtr paper = PageSetupMediaCol(session))
            ippCopyAttribute(mediaCol.get(), ippFirstAttribute(paper.get()), 0);
    AddCollection(ipp, IPP_TAG_JOB, "media-col", mediaCol);

    if (const auto plex = Plex(settings))
        if (const auto sides = Sides(*plex))
            AddKeyword(ipp, IPP_TAG_JOB, "sides", *sides);
    AddFinishings(ipp, settings);
    if (const auto bin = OutputBin(PpdChoice(settings, "OutputBin")))
        AddWord(ipp, IPP_TAG_JOB, "output-bin", *bin);
    AddSpecialPages(ipp, settings, jobStock ? &*jobStock : nullptr);
    AddImageQuality(ipp, settings, type != kJobTypeLANFax);
    AddPageSetup(ipp, session);

    if (type == kJobTypeDelayed)
        if (const PropertyValue* time = typeItem(kDelayedPrintTimeKey))
            if (const auto seconds = time->toInteger())
                AddDateTime(ipp, "job-hold-until-time", FromSeconds1904(*seconds));
    if (type == kJobTypeSavedJob) {
        IppPtr storage(ippNew());
        const PropertyValue* disposition = typeItem(kSaveDispositionKey);
        AddKeyword(storage.get(), IPP_TAG_ZERO, "job-storage-disposition",
                   disposition && disposition->toInteger() == kSaveOnly
                       ? QStringLiteral("store-only")
                       : QStringLiteral("print-and-store"));
        AddKeyword(storage.get(), IPP_TAG_ZERO, "job-storage-access",
                   passcode && !passcode->toString().isEmpty() ? QStringLiteral("owner")
                                                               : QStringLiteral("public"));
        if (const PropertyValue* location = typeItem(kSavedJobLocationKey))
            if (const QString group = StorageGroup(location->toString()); !group.isEmpty())
                ippAddString(storage.get(), IPP_TAG_ZERO, IPP_TAG_NAME, "job-storage-group",
                             nullptr, group.toUtf8().constData());
        AddCollection(ipp, IPP_TAG_JOB, "job-storage", storage);
    }
    if (type == kJobTypeSampleSet) {
        IppPtr proof(ippNew());
        ippAddInteger(proof.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "proof-print-copies", 1);
        AddCollection(ipp, IPP_TAG_JOB, "proof-print", proof);
    }
    if (type == kJobTypeLANFax)
        AddFax(ipp, settings);

    if (const auto banner = settings.string(kJobNotesSheetMessageKey); banner && !banner->isEmpty())
        AddText(ipp, IPP_TAG_JOB, "job-sheet-message", *banner);
    if (const auto message = settings.string(kJobNotesMessageKey); message && !message->isEmpty())
        AddText(ipp, IPP_TAG_JOB, "job-message-to-operator", *message);
    return job;
}

} // namespace orvan::submission
