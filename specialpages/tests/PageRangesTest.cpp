// Typed page ranges, in both record modes, and the alerts their errors raise.
#include "specialpages/PageRanges.h"
#include "platform/Alerts.h"
#include "settings/Bundle.h"
#include "specialpages/SpecialPagesNotification.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <tuple>

using namespace orvan;

namespace orvan {
std::ostream& operator<<(std::ostream& os, const PageRange& r)
{
    return os << "{" << r.first << "," << r.count << "}";
}
} // namespace orvan

TEST(PageRanges, ParsesInBothModes)
{
    // The ranges as records {first, count}; none on failure.
    const std::tuple<const char*, Status, std::vector<PageRange>> cases[] = {
        // clang-format off
        {"1, 4-6, 10", kNoError, {{1, 1}, {4, 3}, {10, 1}}},
        {"0", kNoError, {{0, 1}}},
        {"99999", kNoError, {{99999, 1}}},
        {"00012", kNoError, {{12, 1}}},
        {"-5", kNoError, {{1, 5}}},
        {"3-5-7", kNoError, {{3, 3}, {1, 7}}}, // a leading hyphen starts again from page 1
        {"3 4", kNoError, {{3, 1}, {4, 1}}},
        {"3 - 5", kNoError, {{3, 3}}},
        {" 12 ,, 3-3 ,", kNoError, {{12, 1}, {3, 1}}},
        {"1, 2, 1", kNoError, {{1, 1}, {2, 1}, {1, 1}}},
        {"2-4,3-6", kNoError, {{2, 3}, {3, 4}}},
        {"99998-", kNoError, {{99998, 2}}},
        {"1a2", kNoError, {{1, 1}, {2, 1}}}, // other characters are skipped like spaces
        {"5-3", kInvalidRangeOrder, {}},
        {"-0", kInvalidRangeOrder, {}},
        {"1, 5-3, 7", kInvalidRangeOrder, {}},
        {"100000", kPageNumberLimit, {}},
        {"2-100000", kPageNumberLimit, {}},
        {"1, 99999999999999999999", kPageNumberLimit, {}},
        {"--", kInvalidPageRanges, {}},
        {"-", kInvalidPageRanges, {}},
        {"5,-", kInvalidPageRanges, {}},
        {"-,5", kInvalidPageRanges, {}},
        {"4--6", kInvalidPageRanges, {}},
        {"1-2-", kInvalidPageRanges, {}}, // the last hyphen starts a range from page 1 with no end
        {"", kInvalidPageRanges, {}},
        {"   ", kInvalidPageRanges, {}},
        {",,", kInvalidPageRanges, {}},
        {"abc", kInvalidPageRanges, {}},
        // clang-format on
    };
    for (const auto& [text, status, ranges] : cases) {
        std::vector<PageRange> pages; // one record a page
        for (const PageRange& range : ranges) {
            for (std::int32_t page = range.first; page < range.first + range.count; ++page)
                pages.push_back({page, 1});
        }
        for (bool asRanges : {true, false}) {
            std::vector<PageRange> result{{42, 42}}; // set on success only
            EXPECT_EQ(CreatePageRangesBySeparatingString(QString(text), asRanges, &result), status)
                << '"' << text << "\" asRanges " << asRanges;
            const std::vector<PageRange> failed{{42, 42}};
            EXPECT_EQ(result, (status != kNoError ? failed
                               : asRanges         ? ranges
                                                  : pages))
                << '"' << text << "\" asRanges " << asRanges;
        }
    }
    EXPECT_EQ(CreatePageRangesBySeparatingString(u"1", true, nullptr), kBadParameter);
}

// One record a page all the way to the last page: the inserts dialog relies
// on it; kept so.
TEST(PageRanges, OpenRangeRunsToTheLastPage)
{
    std::vector<PageRange> ranges, pages;
    ASSERT_EQ(CreatePageRangesBySeparatingString(u"10-", true, &ranges), kNoError);
    EXPECT_EQ(ranges, (std::vector<PageRange>{{10, kLastPageNumber - 10 + 1}}));
    ASSERT_EQ(CreatePageRangesBySeparatingString(u"2, 10-", false, &pages), kNoError);
    ASSERT_EQ(pages.size(), 1u + (kLastPageNumber - 10 + 1));
    EXPECT_EQ(pages[0], (PageRange{2, 1}));
    EXPECT_EQ(pages[1], (PageRange{10, 1}));
    EXPECT_EQ(pages.back(), (PageRange{kLastPageNumber, 1}));
}

namespace {

// Collects the alerts shown while it lives.
class AlertRecorder
{
public:
    AlertRecorder() : m_previous(SetAlertPresenter([this](const Alert& a) { alerts.push_back(a); }))
    {
    }
    ~AlertRecorder() { SetAlertPresenter(std::move(m_previous)); }
    std::vector<Alert> alerts;

private:
    AlertPresenter m_previous;
};

} // namespace

TEST(SpecialPagesNotification, OneCautionAlertPerErrorCodeWithTheBundlesTexts)
{
    const std::tuple<Status, const char*, const char*> codes[] = {
        {kPageNumberLimit, "Page Number Too Large", "Page numbers can have at most 5 digits."},
        {kInvalidPageRanges, "Invalid Pages",
         "Enter page numbers or page ranges separated by commas, for example 1, 4-6, 10-."},
        {kInvalidRangeOrder, "Invalid Page Range",
         "The first page of a range must not come after its last page."},
        {kInvalidPageNumbers, "Invalid Page Number",
         "Exception pages start at page 1. Page 0 cannot be used here."},
        {kPageRangeConflict, "Page Range Conflict",
         "These pages already have other special page settings."},
    };
    const QTemporaryDir empty;
    const Bundle bare(empty.path()), plugin(ORVAN_PLUGIN_DIR, "en");
    AlertRecorder recorder;
    for (const auto& [code, title, message] : codes) {
        recorder.alerts.clear();
        SpecialPagesUserNotification(code, bare); // no tables: the fallback text
        SpecialPagesUserNotification(code, plugin);
        ASSERT_EQ(recorder.alerts.size(), 2u) << code;
        EXPECT_EQ(recorder.alerts[0].level, AlertLevel::Caution);
        EXPECT_EQ(recorder.alerts[0].title, kStringNotFound);
        EXPECT_EQ(recorder.alerts[0].message, kStringNotFound);
        EXPECT_EQ(recorder.alerts[1].title, title);
        EXPECT_EQ(recorder.alerts[1].message, message);
    }
    recorder.alerts.clear();
    for (Status quiet : {kNoError, kBadParameter, Status{999}, Status{1004}})
        SpecialPagesUserNotification(quiet, plugin);
    EXPECT_TRUE(recorder.alerts.empty());
}
