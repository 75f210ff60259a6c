// Stock summaries with the sample printer's texts, in the job and the
// special-page contexts.
#include "StockTestSupport.h"

#include "stock/StockSummary.h"

namespace orvan {
namespace {

using StockSummaryTest = testing::SamplePrinterTest;

TEST_F(StockSummaryTest, LinesPerContext)
{
    constexpr auto job = JobContext::Job, covers = JobContext::Covers;
    const struct
    {
        bool jobDefaults; // else every attribute unset
        void (*change)(Stock&);
        JobContext context;
        const char* summary;
    } cases[] = {
        // The job names colour and type even when unset, never the size.
        {true, [](Stock&) {}, job, "- White | - Plain"},
        {true, [](Stock&) {}, covers, "- Letter | - White | - Plain"},
        {false, [](Stock&) {}, job, "- Printer Default | - Printer Default"},
        {false, [](Stock&) {}, JobContext::Inserts, ""},
        {false, [](Stock& s) { s.setSize(4); }, JobContext::ExceptionPages, "- A4"},
        // A custom name alone or first.
        {true, [](Stock& s) { s.setCustomName("Q"); }, job, "Stock Name: Q | - White | - Plain"},
        {true, [](Stock& s) { s.setCustomName("Q"), s.setCustomNameOnly(true); }, job,
         "Stock Name: Q"},
        {true, [](Stock& s) { s.setCustomNameOnly(true); }, job, ""},
        // Custom colours, named types and tab counts above zero.
        {false, [](Stock& s) { s.setColor(10), s.setCustomColor("Sky"); }, covers, "Color: Sky"},
        {false, [](Stock& s) { s.setType(7), s.setCustomType("Bond"), s.setModulus(8); }, covers,
         "- Bond"},
        {false, [](Stock& s) { s.setType(6), s.setCustomType("Bond"), s.setModulus(8); }, covers,
         "- Bond (8)"},
        {false, [](Stock& s) { s.setType(4), s.setModulus(8); }, covers, "- Pre-Cut Tab Stock (8)"},
        {false, [](Stock& s) { s.setType(24), s.setModulus(5); }, covers, "- Tab Stock (5)"},
        {false, [](Stock& s) { s.setType(24), s.setModulus(0); }, covers, "- Tab Stock"},
        {false, [](Stock& s) { s.setType(24); }, covers, "- Tab Stock"},
        {false, [](Stock& s) { s.setType(33), s.setModulus(3); }, covers, "- Heavy Tab Stock (3)"},
        {false, [](Stock& s) { s.setType(12), s.setModulus(3); }, covers, "- Card Stock"},
        // The source decides first; a tray is not described here.
        {true, [](Stock& s) { s.setSource(10), s.setCustomName("Q"); }, covers,
         "- Post-Print Inserter"},
        {true, [](Stock& s) { s.setSource(10); }, job, "- Post-Print Inserter"},
        {true, [](Stock& s) { s.setSource(3); }, covers, ""},
    };
    for (const auto& c : cases) {
        Stock stock(nullptr);
        if (c.jobDefaults)
            DefaultStock(stock, job);
        c.change(stock);
        EXPECT_EQ(GenerateStockSummary(bundle.get(), c.context, stock, " | "), c.summary);
    }
}

// The shown text joins the lines; with none it falls back by context.
TEST_F(StockSummaryTest, ShownTextFallsBackByContext)
{
    Stock stock(nullptr);
    EXPECT_EQ(StockSummaryText(bundle.get(), &stock, JobContext::Covers), "Use Job Setting");
    stock.setSource(3);
    EXPECT_EQ(StockSummaryText(bundle.get(), &stock, JobContext::Job), "Printer Default");
    EXPECT_EQ(StockSummaryText(bundle.get(), nullptr, JobContext::Job), QString());
}

} // namespace
} // namespace orvan
