// The shell driving real panels: test panels built on the same base class and
// table as the plug-in's own, loaded through the shell's loader.
#include "platform/Alerts.h"
#include "shell/PDEHooks.h"
#include "shell/PDEShell.h"
#include "shell/PanelBase.h"
#include "shell/ShellTicketItems.h"

#include <gtest/gtest.h>

#include <map>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

using namespace orvan;

namespace {

struct Call
{
    int panel;
    std::string operation;
    bool direction = false;
    friend bool operator==(const Call&, const Call&) = default;
};
std::vector<Call>& calls()
{
    static std::vector<Call> log;
    return log;
}

// What the first panel tells the OK guard.
struct GuardState : PrintGuardSource
{
    std::int32_t type = 1;
    QString passcode;
    int recipients = 0;
    int faxSetupRuns = 0;
    std::int32_t jobType() const override { return type; }
    QString securePrintPasscode() const override { return passcode; }
    int faxRecipientCount() const override { return recipients; }
    void runFaxSetup() override { ++faxSetupRuns; }
};
GuardState& guard()
{
    static GuardState state;
    return state;
}

template <int N> class TestPanel : public PanelBase
{
public:
    Description describe() const override
    {
        return {QStringLiteral("test.kind.%1").arg(N), QStringLiteral("Panel %1").arg(N), 100, 100};
    }
    Status initialize(QWidget*, PrintSession*) override
    {
        calls().push_back({N, "initialize"});
        return kNoError;
    }
    Status sync(PrintSession*, bool direction) override
    {
        calls().push_back({N, "sync", direction});
        return kNoError;
    }
    Status summaryText(PropertyValue* titles, PropertyValue* values) override
    {
        titles->append(PropertyValue(QStringLiteral("Setting %1").arg(N)));
        values->append(PropertyValue(QStringLiteral("Value %1").arg(N)));
        return kNoError;
    }
    Status close() override
    {
        calls().push_back({N, "close"});
        return kNoError;
    }
    Status terminate(Status) override
    {
        calls().push_back({N, "terminate"});
        return kNoError;
    }
    PrintGuardSource* printGuardSource() override { return N == 1 ? &guard() : nullptr; }
};

// A panel whose code throws: reading runs out of memory, writing fails.
class ThrowingPanel : public TestPanel<9>
{
public:
    Status sync(PrintSession*, bool direction) override
    {
        if (direction)
            throw std::bad_alloc();
        throw std::runtime_error("the ticket went away");
    }
};

struct RecordingView : ShellView
{
    std::vector<std::string> events;
    void setContainerVisible(bool visible) override
    {
        events.push_back(visible ? "show container" : "hide container");
    }
    void showPane(const LoadedPanel& panel, bool shown) override
    {
        if (shown)
            events.push_back("show " + std::to_string(panel.tabNumber));
    }
    void setTabValue(std::int32_t tab) override { events.push_back("tab " + std::to_string(tab)); }
};

const char* const kFourPanels[] = {"P1", "P2", "P3", "P4", nullptr};
const char* const kThreePanels[] = {"P1", "P2", "P3", nullptr};
const char* const kPanelsWithAThrower[] = {"P1", "Thrower", "P3", nullptr};

PanelInterfaceFunction resolveTestPanel(const char* name)
{
    static const std::map<std::string, PanelInterfaceFunction> panels = {
        {"P1", GetPanelInterface<TestPanel<1>>},       {"P2", GetPanelInterface<TestPanel<2>>},
        {"P3", GetPanelInterface<TestPanel<3>>},       {"P4", GetPanelInterface<TestPanel<4>>},
        {"Thrower", GetPanelInterface<ThrowingPanel>},
    };
    const auto it = panels.find(name);
    return it == panels.end() ? nullptr : it->second;
}

class ShellTest : public ::testing::Test
{
protected:
    void start(const char* const* names, const PanelResolver& resolve = resolveTestPanel)
    {
        calls().clear();
        guard() = GuardState{};
        ASSERT_EQ(ShellProlog(&m_bundle, names, resolve, &m_shell, &m_creator, &m_kind, &m_title,
                              &m_width, &m_height),
                  kNoError);
        m_shell->session = &m_session;
        m_shell->view = &m_view;
        SetClientFactsSourceForTesting([] {
            return ClientFacts{QStringLiteral("ada"), QStringLiteral("Desk"), {}};
        });
    }
    void TearDown() override
    {
        if (m_shell)
            ShellTerminate(m_shell, kNoError);
        SetClientFactsSourceForTesting({});
        SetAlertPresenter({});
        _lastTabIndex() = 0;
    }
    std::vector<Call> syncCalls() const
    {
        std::vector<Call> result;
        for (const Call& c : calls())
            if (c.operation == "sync")
                result.push_back(c);
        return result;
    }

    Bundle m_bundle{ORVAN_PLUGIN_DIR, QStringLiteral("en")};
    PrintSession m_session;
    RecordingView m_view;
    PDEShellContext* m_shell = nullptr;
    std::uint32_t m_creator = 0, m_width = 0, m_height = 0;
    QString m_kind, m_title;
};

} // namespace

TEST_F(ShellTest, PrologReportsThePaneAndLoadsPanelsInOrder)
{
    start(kFourPanels);
    EXPECT_EQ(m_creator, 0x70646520u); // 'pde '
    EXPECT_EQ(m_kind, "com.orvan.print.pde.orvanfeatureskind");
    EXPECT_EQ(m_width, 540u);
    EXPECT_EQ(m_height, 491u);
    EXPECT_FALSE(m_title.isEmpty());
    ASSERT_EQ(m_shell->panelCount, 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(m_shell->panels[i].tabNumber, i + 1);
        EXPECT_EQ(m_shell->panels[i].title, QStringLiteral("Panel %1").arg(i + 1));
    }
    EXPECT_EQ(CurrentShellContext(), m_shell);
}

TEST_F(ShellTest, APanelThatFailsToLoadIsTriedAgainAtOnce)
{
    int attempts = 0;
    start(kThreePanels, [&attempts](const char* name) -> PanelInterfaceFunction {
        if (std::string(name) == "P2" && ++attempts <= 2)
            return nullptr; // not there yet: the loader asks again for the same name
        return resolveTestPanel(name);
    });
    EXPECT_EQ(attempts, 3);
    ASSERT_EQ(m_shell->panelCount, 3);
    EXPECT_EQ(m_shell->panels[1].title, "Panel 2");
}

TEST_F(ShellTest, SyncRunsThePanelOnScreenLast)
{
    start(kThreePanels);
    _lastTabIndex() = 2;
    ASSERT_EQ(ShellSync(m_shell, &m_session, true), kNoError);
    EXPECT_EQ(syncCalls(),
              (std::vector<Call>{{1, "sync", true}, {3, "sync", true}, {2, "sync", true}}));
    calls().clear();
    ASSERT_EQ(ShellSync(m_shell, &m_session, false), kNoError);
    EXPECT_EQ(syncCalls(),
              (std::vector<Call>{{1, "sync", false}, {3, "sync", false}, {2, "sync", false}}));
}

TEST_F(ShellTest, AnExceptionInAPanelBecomesAStatusAndTheOtherPanelsStillSync)
{
    start(kPanelsWithAThrower);
    const LoadedPanel& thrower = m_shell->panels[1];
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(thrower.table.Sync(thrower.context, &m_session, false), kUnexpectedFailure);
    EXPECT_EQ(thrower.table.Sync(thrower.context, &m_session, true), kMissingContext);
    _lastTabIndex() = 1;
    EXPECT_EQ(ShellSync(m_shell, &m_session, false), kNoError);
    const std::string diagnostics = ::testing::internal::GetCapturedStderr();
    EXPECT_NE(diagnostics.find("panel Sync failed: the ticket went away"), std::string::npos)
        << diagnostics;
    EXPECT_NE(diagnostics.find("panel Sync failed: out of memory"), std::string::npos)
        << diagnostics;
    EXPECT_EQ(syncCalls(), (std::vector<Call>{{3, "sync", false}, {1, "sync", false}}));
    EXPECT_TRUE(m_session.printSettings().containsItem(kControllerFamilyKey))
        << "the shell's own items still written";
}

TEST_F(ShellTest, SkippedRecordsTakeNoPartAndMissingSessionIsRefused)
{
    start(kThreePanels);
    m_shell->panels[0].tabNumber = -1;
    _lastTabIndex() = 3;
    ShellSync(m_shell, &m_session, true);
    EXPECT_EQ(syncCalls(), (std::vector<Call>{{2, "sync", true}, {3, "sync", true}}));
    EXPECT_EQ(ShellSync(m_shell, nullptr, true), kSyncMissingContext);
    EXPECT_EQ(ShellSync(nullptr, &m_session, true), kSyncMissingContext);
    EXPECT_EQ(ShellGetSummaryText(nullptr, nullptr, nullptr), kMissingContext);
    // Terminate skips the record as well; back in its tab, its panel is released.
    m_shell->panels[0].tabNumber = 1;
}

TEST_F(ShellTest, ReadingSyncWritesNothingAndWritingSyncWritesTheShellItems)
{
    start(kThreePanels);
    m_session.printSettings().setItem(kPanelClient, kRotateBooklet180Key,
                                      PropertyValue::integer(1));
    const Ticket before = m_session.printSettings();
    ShellSync(m_shell, &m_session, true);
    EXPECT_EQ(m_session.printSettings(), before);

    ShellSync(m_shell, &m_session, false);
    const Ticket& after = m_session.printSettings();
    EXPECT_FALSE(after.containsItem(kRotateBooklet180Key));
    EXPECT_EQ(after.string(kControllerFamilyKey), "Meridian");
    EXPECT_EQ(after.string(kControllerVersionKey), "5.0");
    EXPECT_EQ(after.item(kControllerFamilyKey)->client, "Q");
    EXPECT_FALSE(after.item(kControllerFamilyKey)->locked);
    EXPECT_EQ(after.string(kClientUserNameKey), "ada");
    EXPECT_EQ(after.string(kClientComputerNameKey), "Desk");
    EXPECT_FALSE(after.containsItem(kClientIPAddressKey));
}

TEST_F(ShellTest, SwitchingTabsSyncsTheLeavingPanelThenTheOthers)
{
    start(kFourPanels);
    _lastTabIndex() = 2;
    EXPECT_TRUE(ShellHandleControlHit(m_shell, kShellTabControlID, 3));
    EXPECT_EQ(syncCalls(),
              (std::vector<Call>{
                  {2, "sync", false}, {1, "sync", true}, {3, "sync", true}, {4, "sync", true}}));
    EXPECT_EQ(_lastTabIndex(), 3);
    EXPECT_EQ(m_view.events,
              (std::vector<std::string>{"hide container", "show 3", "show container"}));

    // The tab already shown: the event passes on and nothing syncs.
    calls().clear();
    m_view.events.clear();
    EXPECT_FALSE(ShellHandleControlHit(m_shell, kShellTabControlID, 3));
    EXPECT_TRUE(calls().empty());
    EXPECT_TRUE(m_view.events.empty());
}

TEST_F(ShellTest, NextAndPreviousWrapAround)
{
    start(kFourPanels);
    struct Row
    {
        std::int32_t from;
        std::int32_t control;
        std::int32_t to;
    };
    const Row rows[] = {{4, kShellNextButtonID, 1},
                        {1, kShellPreviousButtonID, 4},
                        {2, kShellNextButtonID, 3},
                        {3, kShellPreviousButtonID, 2}};
    for (const Row& row : rows) {
        _lastTabIndex() = row.from;
        m_view.events.clear();
        EXPECT_TRUE(ShellHandleControlHit(m_shell, row.control, 0));
        EXPECT_EQ(_lastTabIndex(), row.to);
        EXPECT_EQ(m_view.events.back(), "tab " + std::to_string(row.to));
    }
    EXPECT_FALSE(ShellHandleControlHit(m_shell, 4242, 0));
}

TEST_F(ShellTest, SummaryTextCollectsEveryPanelInTabOrder)
{
    start(kThreePanels);
    PropertyValue titles("stale"), values("stale");
    ASSERT_EQ(ShellGetSummaryText(m_shell, &titles, &values), kNoError);
    ASSERT_TRUE(titles.isArray());
    ASSERT_EQ(titles.size(), 3u);
    EXPECT_EQ(titles.asArray()[0], PropertyValue("Setting 1"));
    EXPECT_EQ(values.asArray()[2], PropertyValue("Value 3"));
}

TEST_F(ShellTest, OkGuardNeedsAPasscodeForSecurePrintAndRecipientsForFax)
{
    start(kFourPanels);
    std::vector<Alert> shown;
    SetAlertPresenter([&shown](const Alert& alert) { shown.push_back(alert); });

    guard().type = kJobTypeSecure;
    EXPECT_EQ(ShellOkGuard(m_shell), OkGuardDecision::RefusedSecurePrintPasscode);
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_TRUE(shown[0].message.contains("4")) << shown[0].message.toStdString();
    EXPECT_TRUE(shown[0].message.contains("10")) << shown[0].message.toStdString();
    EXPECT_FALSE(shown[0].title.isEmpty());

    guard().passcode = QStringLiteral("1234");
    EXPECT_EQ(ShellOkGuard(m_shell), OkGuardDecision::Print);

    guard().type = kJobTypeLANFax;
    EXPECT_EQ(ShellOkGuard(m_shell), OkGuardDecision::OpenedFaxSetup);
    EXPECT_EQ(guard().faxSetupRuns, 1);
    guard().recipients = 2;
    EXPECT_EQ(ShellOkGuard(m_shell), OkGuardDecision::Print);
    EXPECT_EQ(guard().faxSetupRuns, 1);

    guard().type = 1;
    guard().recipients = 0;
    EXPECT_EQ(ShellOkGuard(m_shell), OkGuardDecision::Print);
    EXPECT_EQ(shown.size(), 1u);
    EXPECT_EQ(ConsumedOkResult(), kOkCommandConsumed);
}

TEST_F(ShellTest, TerminateEndsEveryPanelAndClearsTheProcessWideState)
{
    start(kThreePanels);
    OrvanPDEInitialize(&m_session);
    EXPECT_EQ(GetCurrentPrintSession(), &m_session);
    ShellClose(m_shell);
    ShellTerminate(m_shell, kNoError);
    m_shell = nullptr;
    std::vector<Call> ends;
    for (const Call& c : calls())
        if (c.operation == "close" || c.operation == "terminate")
            ends.push_back(c);
    EXPECT_EQ(ends, (std::vector<Call>{{1, "close"},
                                       {2, "close"},
                                       {3, "close"},
                                       {1, "terminate"},
                                       {2, "terminate"},
                                       {3, "terminate"}}));
    EXPECT_EQ(CurrentShellContext(), nullptr);
    EXPECT_EQ(GetCurrentPrintSession(), nullptr);
}
