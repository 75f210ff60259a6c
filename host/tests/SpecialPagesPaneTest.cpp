// The Special Pages pane in the Print dialog, offscreen: a user's special
// pages (and covers chosen on the Paper/Output tab) go through Print into the
// saved ticket, and orvan-print's headless run of that ticket keeps them.
#include "host/PrintDialog.h"
#include "host/tests/HostTestSupport.h"
#include "settings/PropertyList.h"
#include "settings/TicketFile.h"
#include "specialpages/SpecialPageKeys.h"
#include "specialpages/SpecialPagesTicket.h"
#include "specialpages/tests/SpecialPagesUserSteps.h"
#include "ui/AlertBox.h"

#include <QPushButton>
#include <QTemporaryDir>

using namespace orvan;
using namespace orvan::testing;

namespace {

// The ticket's special pages in the list's order: covers, inserts as
// page x sheets, exception ranges.
QString TicketPages(const Ticket& ticket)
{
    SpecialPagesState state;
    state.readFromTicket(ticket);
    QStringList pages;
    if (state.frontCover)
        pages << "front";
    for (long i = 0; i < state.inserts.count(); ++i)
        pages << QStringLiteral("%1x%2")
                     .arg(state.inserts.pageAtIndex(i)->startPage())
                     .arg(state.inserts.pageAtIndex(i)->quantity());
    for (long i = 0; i < state.exceptions.count(); ++i)
        pages << QStringLiteral("%1-%2")
                     .arg(state.exceptions.pageAtIndex(i)->startPage())
                     .arg(state.exceptions.pageAtIndex(i)->endPage());
    if (state.backCover)
        pages << "back";
    return pages.join(' ');
}

TEST(SpecialPagesPane, PagesAddedInThePaneReachTheSavedTicketAndTheHeadlessRun)
{
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.filePath("config").toLocal8Bit());
    qputenv("ORVAN_SHARED_DATA_DIR", home.filePath("shared").toLocal8Bit());
    QString why;
    const std::unique_ptr<PluginHost> plugin = PluginHost::load(ORVAN_PLUGIN_DIR, &why);
    ASSERT_TRUE(plugin) << why.toStdString();
    const QString saved = home.filePath("job.plist");
    const QuestionPresenter previous = InstallMessageBoxQuestionPresenter();

    PrintSession session;
    {
        PrintDialog dialog(
            session, *plugin,
            {{.displayName = kSamplePrinterName, .isDefault = true, .isSample = true}},
            {.saveTicketPath = saved});
        dialog.show();
        // Paper/Output's covers command opens the same covers dialog.
        RunCommand(&dialog, "CoversButton", "CoversDialog", [](QWidget* covers) {
            Choose(Control<QComboBox>(covers, "CoversOptionsPopup"), 2); // front and back
            ClickOK(covers);
        });
        auto* panes = Control<QComboBox>(&dialog, "PanePopup");
        ASSERT_TRUE(panes);
        const int item = panes->findText("Special Pages");
        ASSERT_GE(item, 0);
        Choose(panes, item);
        QWidget* pane = Control<QWidget>(&dialog, "SpecialPages");
        ASSERT_TRUE(pane && pane->isVisible());
        EXPECT_EQ(ListedPages(pane), "Front | Back");
        AddSpecialPagesAsAUserWould(pane);
        Control<QPushButton>(&dialog, "PrintButton")->click();
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
    }
    SetQuestionPresenter(previous);

    PrintSession reread;
    ASSERT_TRUE(loadTicketFile(saved, reread, &why)) << why.toStdString();
    const Ticket& ticket = reread.printSettings();
    EXPECT_EQ(TicketPages(ticket), "front 7x2 7x1 1-1 4-6 10-12");
    EXPECT_EQ(ticket.item(kInsertListKey)->client, kRecordClient);

    const RunResult dump = RunOrvanPrint({"--dump-ticket", "--ticket", saved});
    EXPECT_EQ(dump.exitCode, 0) << dump.why();
    const auto plist = readPropertyList(dump.out);
    PrintSession dumped;
    ASSERT_TRUE(plist && sessionFromPropertyList(*plist, dumped));
    for (const QString& key : {kFrontCoverKey, kInsertListKey, kExceptionListKey})
        EXPECT_EQ(*dumped.printSettings().value(key), *ticket.value(key)) << key.toStdString();
    EXPECT_FALSE(dumped.printSettings().containsItem(kBackCoverKey));
}

} // namespace
