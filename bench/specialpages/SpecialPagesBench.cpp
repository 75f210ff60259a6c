// An open page range typed in the inserts dialog ("10-") makes one insert per
// page up to the last page number: the dialog's OK, the list's rows and the
// ticket form of that many inserts must each stay well under a second.
#include "settings/Ticket.h"
#include "specialpages/InsertsDialogModel.h"
#include "specialpages/SpecialPagesModel.h"

#include <benchmark/benchmark.h>

namespace {

using namespace orvan;

void FillFromOpenRange(InsertList& inserts)
{
    InsertsDialogModel dialog(nullptr, DialogMode::Add, nullptr);
    dialog.setPagesText(QStringLiteral("10-"));
    dialog.accept(inserts, nullptr, {});
}

void InsertsDialogAcceptsAnOpenRange(benchmark::State& state)
{
    for (auto _ : state) {
        InsertList inserts;
        FillFromOpenRange(inserts);
        benchmark::DoNotOptimize(inserts.count());
    }
}
BENCHMARK(InsertsDialogAcceptsAnOpenRange)->Unit(benchmark::kMillisecond);

void RowsAndTicketOfAnOpenRange(benchmark::State& state)
{
    SpecialPagesModel model;
    FillFromOpenRange(model.state().inserts);
    for (auto _ : state) {
        model.updateSpecialPagesSummary();
        Ticket ticket;
        model.syncToTicket(ticket);
        benchmark::DoNotOptimize(ticket.items().size());
    }
}
BENCHMARK(RowsAndTicketOfAnOpenRange)->Unit(benchmark::kMillisecond);

} // namespace
