// One ticket fragment in, the job's attributes and options out: every row
// names the attributes it looks at and the text (with value types) each must
// have; an empty text means the attribute must be absent.
#include "submission/JobAttributes.h"
#include "paperoutput/JobNotesModel.h"
#include "paperoutput/PaperOutputRecord.h"
#include "specialpages/Cover.h"
#include "specialpages/ExceptionPage.h"
#include "specialpages/Insert.h"
#include "specialpages/SpecialPageKeys.h"
#include "submission/CopiesAndPages.h"
#include "submission/tests/IppText.h"
#include "tests/support/TestData.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include <functional>

using namespace orvan;
using namespace orvan::submission;
using orvan::testing::IppText;

namespace {

Stock MakeStock(std::int32_t size, std::int32_t type, std::int32_t color)
{
    Stock stock(nullptr);
    stock.setSize(size);
    stock.setType(type);
    stock.setColor(color);
    return stock;
}

void SetJobType(Ticket& ticket, std::int32_t type, PropertyDictionary more = {})
{
    more[kJobTypeValueKey] = PropertyValue::integer(type, NumberType::SInt32);
    ticket.setItem(kPanelClient, kJobTypeKey, PropertyValue(std::move(more)));
}

void SetPpd(Ticket& ticket, std::initializer_list<std::pair<const char*, const char*>> choices)
{
    for (const auto& [keyword, choice] : choices)
        ticket.ppdDictionary().insert(keyword, choice);
}

PropertyValue Array(std::initializer_list<PropertyValue> values)
{
    return PropertyValue(PropertyArray(values));
}

// 2026-11-23 22:30 local time, in seconds since 1904 local time.
constexpr std::int64_t kHoldSeconds = 3'873'047'400;

QString UtcDate(std::int64_t seconds1904)
{
    const QDateTime local = QDateTime(QDate(1904, 1, 1), QTime(0, 0)).addSecs(seconds1904);
    return local.toUTC().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ssZ"));
}

struct Row
{
    const char* what;
    std::function<void(PrintSession&)> fill;
    std::vector<std::pair<const char*, QString>> expected; // attribute, text ("" = absent)
};

TEST(JobAttributes, TicketFragmentsBecomeTypedAttributes)
{
    const Row rows[] = {
        {"nothing but the document",
         [](PrintSession&) {},
         {{"job-name", "job-name (nameWithoutLanguage)=report.pdf"},
          {"copies", "copies (integer)=1"},
          {"page-ranges", ""},
          {"media-col", ""},
          {"finishings", ""},
          {"job-password", ""}}},
        {"copies and pages",
         [](PrintSession& s) { WriteCopiesAndPages(s.printSettings(), 3, 2, 5); },
         {{"copies", "copies (integer)=3"}, {"page-ranges", "page-ranges (rangeOfInteger)=2-5"}}},
        {"job-level stock",
         [](PrintSession& s) {
             Stock stock = MakeStock(4, 12, 2);
             stock.setWeight(200);
             stock.setSource(2);
             stock.setDescription("Linen cards");
             s.printSettings().setItem(kPanelClient, kJobLevelStockKey, stock.asTicket());
         },
         {{"media-col",
           "media-col (collection)={media-size (collection)={x-dimension (integer)=21000 "
           "y-dimension (integer)=29700} media-type (keyword)=cardstock media-color "
           "(keyword)=blue media-source (keyword)=tray-2 media-weight-metric (integer)=200 "
           "media-info (textWithoutLanguage)=Linen cards}"}}},
        {"custom size, the user's own type and colour",
         [](PrintSession& s) {
             Stock stock = MakeStock(kCustomPageSize, kNamedMediaType, kCustomMediaColor);
             stock.setWidth(2100);
             stock.setLength(1480);
             stock.setCustomType("Vellum");
             stock.setCustomColor("Sand");
             s.printSettings().setItem(kPanelClient, kJobLevelStockKey, stock.asTicket());
         },
         {{"media-col",
           "media-col (collection)={media-size (collection)={x-dimension (integer)=21000 "
           "y-dimension (integer)=14800} media-type (nameWithoutLanguage)=Vellum media-color "
           "(nameWithoutLanguage)=Sand}"}}},
        {"printer-default stock attributes are left to the printer",
         [](PrintSession& s) {
             s.printSettings().setItem(kPanelClient, kJobLevelStockKey,
                                       MakeStock(kUnset, 23, 23).asTicket());
         },
         {{"media-col", ""}}},
        {"a cover inherits what its stock leaves unset from the job's stock",
         [](PrintSession& s) {
             s.printSettings().setItem(kPanelClient, kJobLevelStockKey,
                                       MakeStock(1, 1, 1).asTicket());
             Cover front;
             front.stock() = MakeStock(kUnset, kUnset, 3);
             front.setSidesImaged(kCoverPrintedDuplex);
             s.printSettings().setItem(kRecordClient, kFrontCoverKey, front.asTicket());
         },
         {{"cover-front",
           "cover-front (collection)={cover-type (keyword)=print-both media-col "
           "(collection)={media-size (collection)={x-dimension (integer)=21590 y-dimension "
           "(integer)=27940} media-type (keyword)=stationery media-color (keyword)=yellow}}"},
          {"cover-back", ""}}},
        {"two inserts and an exception range",
         [](PrintSession& s) {
             Insert first, second;
             first.setQuantity(2);
             first.stock() = MakeStock(kUnset, kUnset, 5);
             second.setStartPage(3);
             second.stock() = MakeStock(kUnset, 24, kUnset);
             s.printSettings().setItem(kRecordClient, kInsertListKey,
                                       Array({first.asTicket(), second.asTicket()}));
             ExceptionPage range;
             range.setStartPage(2);
             range.setEndPage(3);
             range.setPlex(3);
             range.stock() = MakeStock(kUnset, kUnset, 9);
             ExceptionPage empty; // 0-0: no page falls in it
             s.printSettings().setItem(kRecordClient, kExceptionListKey,
                                       Array({range.asTicket(), empty.asTicket()}));
         },
         {{"insert-sheet",
           "insert-sheet (1setOf collection)={insert-after-page-number (integer)=0 insert-count "
           "(integer)=2 media-col (collection)={media-color (keyword)=pink}},"
           "{insert-after-page-number (integer)=3 insert-count (integer)=1 media-col "
           "(collection)={media-type (keyword)=tab-stock}}"},
          {"overrides",
           "overrides (collection)={pages (rangeOfInteger)=2-3 media-col (collection)={media-color "
           "(keyword)=red} sides (keyword)=two-sided-short-edge}"}}},
        {"staple and punch, sides and bin from the PPD choices",
         [](PrintSession& s) {
             SetPpd(s.printSettings(), {{"StapleLocation", "SinglePortrait"},
                                        {"QVPunch", "2HolePunch"},
                                        {"QVFold", "None"},
                                        {"Duplex", "DuplexNoTumble"},
                                        {"OutputBin", "Stacker"}});
         },
         {{"finishings", "finishings (1setOf enum)=staple-top-left,punch-dual-left"},
          {"finishings-col", "finishings-col (1setOf collection)={finishing-template "
                             "(keyword)=staple-top-left},{finishing-template "
                             "(keyword)=punch-dual-left}"},
          {"sides", "sides (keyword)=two-sided-long-edge"},
          {"output-bin", "output-bin (keyword)=stacker"}}},
        {"no finishing chosen, a bin of the printer's own, the panel's two-sided value",
         [](PrintSession& s) {
             SetPpd(s.printSettings(), {{"StapleLocation", "None"},
                                        {"QVPunch", "None"},
                                        {"Duplex", "None"},
                                        {"OutputBin", "EnvFolder"}});
             s.printSettings().setItem(kPanelClient, kFinishingDuplexKey,
                                       PropertyValue::integer(3));
         },
         {{"finishings", "finishings (enum)=none"},
          {"output-bin", "output-bin (nameWithoutLanguage)=EnvFolder"},
          {"sides", "sides (keyword)=two-sided-short-edge"}}},
        {"booklet fold with staples, offset stacking, printer-default bin",
         [](PrintSession& s) {
             SetPpd(s.printSettings(), {{"QVFold", "BiFoldStaple"},
                                        {"Jog", "EndOfSet"},
                                        {"OutputBin", "PrinterDefault"}});
         },
         {{"finishings", "finishings (1setOf enum)=booklet-maker,jog-offset"}, {"output-bin", ""}}},
        {"secure print: the passcode as it was typed, leading zeros kept",
         [](PrintSession& s) {
             SetJobType(s.printSettings(), kJobTypeSecure, {{kSecurePrintPasswordKey, "0012"}});
         },
         {{"job-password", "job-password (octetString)=0012"},
          {"job-password-encryption", "job-password-encryption (keyword)=none"}}},
        {"a passcode left over from an earlier secure job is not sent",
         [](PrintSession& s) {
             SetJobType(s.printSettings(), 1, {{kSecurePrintPasswordKey, "4711"}});
         },
         {{"job-password", ""}}},
        {"delayed print",
         [](PrintSession& s) {
             SetJobType(s.printSettings(), kJobTypeDelayed,
                        {{kDelayedPrintTimeKey,
                          PropertyValue::integer(kHoldSeconds, NumberType::SInt64)}});
         },
         {{"job-hold-until-time", "job-hold-until-time (dateTime)=" + UtcDate(kHoldSeconds)}}},
        {"saved job with its own name, folder and passcode",
         [](PrintSession& s) {
             SetJobType(s.printSettings(), kJobTypeSavedJob,
                        {{kSavedJobNameKey, "Budget"},
                         {kUseJobNameKey, PropertyValue::boolean(false)},
                         {kSavedJobLocationKey, "file:///job-repository/Finance/"},
                         {kSaveDispositionKey, PropertyValue::integer(0)},
                         {kSecurePrintPasswordKey, "2468"}});
         },
         {{"job-name", "job-name (nameWithoutLanguage)=Budget"},
          {"job-storage",
           "job-storage (collection)={job-storage-disposition (keyword)=store-only "
           "job-storage-access (keyword)=owner job-storage-group (nameWithoutLanguage)=Finance}"},
          {"job-password", "job-password (octetString)=2468"}}},
        {"sample set",
         [](PrintSession& s) { SetJobType(s.printSettings(), kJobTypeSampleSet); },
         {{"proof-print", "proof-print (collection)={proof-print-copies (integer)=1}"}}},
        {"fax: recipients as tel: URIs, options, the fax resolution",
         [](PrintSession& s) {
             SetJobType(s.printSettings(), kJobTypeLANFax);
             SetPpd(s.printSettings(), {{"Resolution", "1200x1200dpi"}});
             s.printSettings().setItem(
                 kPanelClient, kFaxRecipientListKey,
                 Array({PropertyDictionary{{kFaxFirstNameKey, "Ada"},
                                           {kFaxNumberKey, "+1 (555) 123-4567"}},
                        PropertyDictionary{{kFaxNumberKey, "9,1-800-ABC-defg"}},
                        PropertyDictionary{{kFaxFirstNameKey, "no number"}}}));
             s.printSettings().setItem(
                 kPanelClient, kFaxOptionsKey,
                 PropertyDictionary{{kFaxConfirmationSheetKey, PropertyValue::boolean(true)},
                                    {kFaxResolutionKey, PropertyValue::integer(2)},
                                    {kFaxDialingPrefixKey, "0"},
                                    {kFaxCoverSheetKey, PropertyValue::boolean(true)},
                                    {kFaxCoverSheetNotesKey, "Two pages"}});
         },
         {{"destination-uris",
           "destination-uris (1setOf collection)={destination-uri (uri)=tel:15551234567 "
           "pre-dial-string (textWithoutLanguage)=0},{destination-uri (uri)=tel:9%2C1800ABC "
           "pre-dial-string (textWithoutLanguage)=0}"},
          {"confirmation-sheet-print", "confirmation-sheet-print (boolean)=true"},
          {"cover-sheet-info",
           "cover-sheet-info (collection)={message (textWithoutLanguage)=Two pages}"},
          {"printer-resolution", "printer-resolution (resolution)=200dpi"}}},
        {"job notes",
         [](PrintSession& s) {
             Ticket& t = s.printSettings();
             t.setItem(kPanelClient, kJobNotesJobNameKey, "Quarterly");
             t.setItem(kPanelClient, kJobNotesSheetMessageKey, "For Ada");
             t.setItem(kPanelClient, kJobNotesMessageKey, "Use the blue tray");
         },
         {{"job-name", "job-name (nameWithoutLanguage)=Quarterly"},
          {"job-sheet-message", "job-sheet-message (textWithoutLanguage)=For Ada"},
          {"job-message-to-operator",
           "job-message-to-operator (textWithoutLanguage)=Use the blue tray"}}},
        {"job notes taking the document's name",
         [](PrintSession& s) {
             s.printSettings().setItem(kPanelClient, kJobNotesUseJobNameKey,
                                       PropertyValue::boolean(true));
             s.printSettings().setItem(kPanelClient, kJobNotesJobNameKey, "login");
         },
         {{"job-name", "job-name (nameWithoutLanguage)=report.pdf"}}},
        {"resolution and quality; toner saving means draft",
         [](PrintSession& s) {
             SetPpd(s.printSettings(), {{"Resolution", "1200x600dpi"},
                                        {"JCLPrintQuality", "Enhanced"},
                                        {"QVEconomode", "Draft"}});
         },
         {{"printer-resolution", "printer-resolution (resolution)=1200x600dpi"},
          {"print-quality", "print-quality (enum)=draft"}}},
        {"page setup: landscape, four up, the paper when the stock names no size",
         [](PrintSession& s) {
             s.pageFormat().setItem(kPanelClient, kOrientationKey,
                                    PropertyValue::integer(2, NumberType::SInt32));
             s.printSettings().setItem(kPanelClient, kLayoutRowsKey, PropertyValue::integer(2));
             s.printSettings().setItem(kPanelClient, kLayoutColumnsKey, PropertyValue::integer(2));
             s.pageFormat()
                 .ensureSubTicket(kPaperInfoTicketKey)
                 .setItem(kPanelClient, kUnadjustedPaperRectKey,
                          Array({PropertyValue::real(0), PropertyValue::real(0),
                                 PropertyValue::real(841.89), PropertyValue::real(595.28)}));
             s.printSettings().setItem(kPanelClient, kJobLevelStockKey,
                                       MakeStock(kUnset, 1, 2).asTicket());
         },
         {{"orientation-requested", "orientation-requested (enum)=landscape"},
          {"number-up", "number-up (integer)=4"},
          {"media-col",
           "media-col (collection)={media-type (keyword)=stationery media-color (keyword)=blue "
           "media-size (collection)={x-dimension (integer)=21000 y-dimension (integer)=29700}}"}}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        PrintSession session;
        row.fill(session);
        const JobDescription job = DescribeJob(session, "report.pdf");
        for (const auto& [name, text] : row.expected)
            EXPECT_EQ(IppText(job.attributes.get(), name), text) << name;
    }
}

TEST(JobAttributes, OperationAttributesComeFirstAndPpdChoicesAreOptions)
{
    PrintSession session;
    SetPpd(session.printSettings(), {{"OutputBin", "Top"}, {"InputSlot", ""}});
    SetJobType(session.printSettings(), kJobTypeSecure, {{kSecurePrintPasswordKey, "1234"}});
    session.printSettings().setItem(kPanelClient, kJobNotesSenderNameKey, "Ada");
    const JobDescription job = DescribeJob(session, "report.pdf");
    bool inJobGroup = false;
    for (ipp_attribute_t* a = ippFirstAttribute(job.attributes.get()); a;
         a = ippNextAttribute(job.attributes.get())) {
        inJobGroup = inJobGroup || ippGetGroupTag(a) == IPP_TAG_JOB;
        EXPECT_EQ(ippGetGroupTag(a), inJobGroup ? IPP_TAG_JOB : IPP_TAG_OPERATION) << ippGetName(a);
    }
    EXPECT_EQ(job.cupsOptions, (JobOptions{{"OutputBin", "Top"}, {"job-notes-sender", "Ada"}}));
}

} // namespace
