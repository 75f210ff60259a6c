#include "shell/PDEShell.h"

#include "platform/Alerts.h"
#include "printerdesc/DeviceProfile.h"
#include "printerdesc/InstallableOptions.h"
#include "printerdesc/PPDAccess.h"
#include "settings/SystemVersion.h"
#include "shell/PDEHooks.h"
#include "shell/ShellTicketItems.h"

namespace orvan {

// Tab order: Paper/Output, Image Options, Booklet/Watermark, Advanced. A
// panel's name stands here once the panel exists in the plug-in.
const char* const _PanelInterfaces[] = {
    "GetPaperOutputPanelInterface",
    "GetImageOptionsPanelInterface",
    "GetBookletWatermarkPanelInterface",
    "GetAdvancedPanelInterface",
    nullptr,
};

namespace {

PDEShellContext* g_shellContext = nullptr;

const QString kShellTitleKey = QStringLiteral("PDE Shell");
constexpr std::uint32_t kShellMaxWidth = 540;
constexpr std::uint32_t kShellMaxHeight = 491;

template <typename Visit> void forEachPanel(PDEShellContext* context, Visit visit)
{
    for (LoadedPanel& panel : context->panels)
        if (panel.tabNumber != -1)
            visit(panel);
}

} // namespace

std::int32_t& _lastTabIndex()
{
    static std::int32_t index = 0;
    return index;
}

PDEShellContext* CurrentShellContext()
{
    return g_shellContext;
}

Status ShellProlog(const Bundle* bundle, const char* const* names, const PanelResolver& resolve,
                   PDEShellContext** context, std::uint32_t* creator, QString* kind, QString* title,
                   std::uint32_t* maxWidth, std::uint32_t* maxHeight)
{
    OrvanPDEProlog();
    auto* shell = new (std::nothrow) PDEShellContext;
    if (!shell)
        return kMissingContext;
    shell->bundle = bundle;
    shell->firstSyncDone = false;
    if (context)
        *context = shell;
    g_shellContext = shell;

    if (maxWidth)
        *maxWidth = kShellMaxWidth;
    if (maxHeight)
        *maxHeight = kShellMaxHeight;
    shell->title =
        bundle ? bundle->localizedString(kShellTitleKey, kShellTitleKey, kDefaultStringTable)
               : kShellTitleKey;
    if (title)
        *title = shell->title;
    if (kind)
        *kind = kOrvanPaneKind;
    if (creator)
        *creator = kPaneKindCreator;
    LoadBuiltInPanels(shell, names, resolve);
    return kNoError;
}

void LoadBuiltInPanels(PDEShellContext* context, const char* const* names,
                       const PanelResolver& resolve)
{
    if (!context || !context->bundle || !names || !names[0])
        return;
    while (names[context->panelCount]) {
        const char* name = names[context->panelCount];
        // The color options panel lives in its own bundle; the resolver
        // knows where to look for each name.
        const PanelInterfaceFunction get = resolve ? resolve(name) : nullptr;
        PDEInterfaceObject* panel = nullptr;
        if (!get || get(&panel) != kNoError || !panel || !panel->table)
            continue; // tried again at once, as every listed panel belongs to the plug-in
        PDEContext panelContext = nullptr;
        std::uint32_t creator = 0, width = 0, height = 0;
        QString kind, title;
        if (panel->table->Prolog(&panelContext, &creator, &kind, &title, &width, &height) !=
            kNoError)
            continue;
        if (context->panels.empty())
            context->panels.reserve(10);
        LoadedPanel record;
        record.table = *panel->table;
        record.context = panelContext;
        record.title = title;
        record.kind = kind;
        record.tabNumber = context->panelCount + 1;
        context->panels.push_back(std::move(record));
        ++context->panelCount;
    }
}

Status ShellSync(PDEShellContext* context, PrintSession* session, bool direction)
{
    Status result = OrvanPDESync();
    if (!context || !session)
        return kSyncMissingContext;
    LoadedPanel* onScreen = nullptr;
    forEachPanel(context, [&](LoadedPanel& panel) {
        if (panel.tabNumber == _lastTabIndex())
            onScreen = &panel;
        else
            panel.table.Sync(panel.context, session, direction);
    });
    if (onScreen)
        onScreen->table.Sync(onScreen->context, session, direction);
    context->firstSyncDone = true;
    if (direction)
        return result;

    Ticket* printSettings = nullptr;
    if (const Status error = GetTicketFromSession(session, kPrintSettingsTicketKey, &printSettings))
        return error;
    if (!printSettings)
        return kBadParameter;
    WriteShellTicketItems(*printSettings, CurrentClientFacts());

    // Which kinds of special page the job has, as the printer's interface
    // asks for them; built on every write sync, not written to the ticket.
    const auto has = [printSettings](const char* key) {
        return PropertyValue::boolean(printSettings->containsItem(QString::fromLatin1(key)));
    };
    PropertyValue specialPageOptions = PropertyValue::dictionary();
    specialPageOptions.insert(
        QStringLiteral("QPIFOptionCovers"),
        PropertyValue::boolean(*has("com.orvan.print.SpecialPages.FrontCover").toBool() ||
                               *has("com.orvan.print.SpecialPages.BackCover").toBool()));
    specialPageOptions.insert(QStringLiteral("QPIFOptionExceptions"),
                              has("com.orvan.print.SpecialPages.ExceptionList"));
    specialPageOptions.insert(QStringLiteral("QPIFOptionInserts"),
                              has("com.orvan.print.SpecialPages.InsertList"));
    return result;
}

Status ShellGetSummaryText(PDEShellContext* context, PropertyValue* titles, PropertyValue* values)
{
    const Status result = OrvanPDEGetSummaryText();
    if (!context)
        return kMissingContext;
    if (titles)
        *titles = PropertyValue();
    if (values)
        *values = PropertyValue();
    forEachPanel(context, [&](LoadedPanel& panel) {
        panel.table.GetSummaryText(panel.context, titles, values);
    });
    return result;
}

Status ShellClose(PDEShellContext* context)
{
    const Status result = OrvanPDEClose();
    if (!context)
        return kMissingContext;
    forEachPanel(context, [](LoadedPanel& panel) { panel.table.Close(panel.context); });
    context->view = nullptr;
    return result;
}

Status ShellTerminate(PDEShellContext* context, Status status)
{
    const Status result = OrvanPDETerminate();
    if (!context)
        return kMissingContext;
    forEachPanel(context,
                 [status](LoadedPanel& panel) { panel.table.Terminate(panel.context, status); });
    if (g_shellContext == context)
        g_shellContext = nullptr;
    delete context;
    PPDCloseCurrent();
    UnloadInstallableOptions();
    QDPFinalize();
    return result;
}

void selectPanel(PDEShellContext* context, std::int32_t tabNumber)
{
    if (!context)
        return;
    PrintSession* session = context->session;
    forEachPanel(context, [&](LoadedPanel& panel) {
        if (panel.tabNumber == _lastTabIndex() && session)
            panel.table.Sync(panel.context, session, false);
    });
    if (context->view)
        context->view->setContainerVisible(false);
    for (LoadedPanel& panel : context->panels) {
        if (panel.tabNumber != _lastTabIndex() && panel.tabNumber != -1 && session)
            panel.table.Sync(panel.context, session, true);
        if (context->view)
            context->view->showPane(panel, panel.tabNumber == tabNumber);
    }
    _lastTabIndex() = tabNumber;
    if (context->view)
        context->view->setContainerVisible(true);
}

std::int32_t nextTabNumber(const PDEShellContext* context)
{
    const std::int32_t next = _lastTabIndex() + 1;
    return next > context->panelCount ? 1 : next;
}

std::int32_t previousTabNumber(const PDEShellContext* context)
{
    const std::int32_t previous = _lastTabIndex() - 1;
    return previous < 1 ? context->panelCount : previous;
}

bool ShellHandleControlHit(PDEShellContext* context, std::int32_t controlID,
                           std::int32_t tabControlValue)
{
    if (!context)
        return false;
    switch (controlID) {
    case kShellTabControlID:
        if (tabControlValue == _lastTabIndex())
            return false;
        selectPanel(context, tabControlValue);
        return true;
    case kShellNextButtonID:
    case kShellPreviousButtonID: {
        const std::int32_t target =
            controlID == kShellNextButtonID ? nextTabNumber(context) : previousTabNumber(context);
        selectPanel(context, target);
        if (context->view)
            context->view->setTabValue(target);
        return true;
    }
    default:
        return false;
    }
}

BookletCreationSource* ShellBookletCreationSource(PDEShellContext* context)
{
    if (!context)
        return nullptr;
    for (const LoadedPanel& panel : context->panels)
        if (panel.context && panel.tabNumber != -1)
            if (BookletCreationSource* source =
                    static_cast<PanelContextBase*>(panel.context)->bookletCreationSource())
                return source;
    return nullptr;
}

OkGuardDecision ShellOkGuard(PDEShellContext* context)
{
    if (!context || context->panels.empty() || !context->panels.front().context)
        return OkGuardDecision::Print;
    auto* first = static_cast<PanelContextBase*>(context->panels.front().context);
    PrintGuardSource* source = first->printGuardSource();
    if (!source)
        return OkGuardDecision::Print;
    switch (source->jobType()) {
    case kJobTypeSecure: {
        if (!source->securePrintPasscode().isEmpty())
            return OkGuardDecision::Print;
        const Bundle* bundle = context->bundle;
        const QString header = QStringLiteral("Invalid Secure Print Passcode Header");
        const QString message = QStringLiteral("Invalid Secure Print Passcode Message");
        Alert alert;
        alert.level = AlertLevel::Caution;
        alert.title =
            bundle ? bundle->localizedString(header, header, kDefaultStringTable) : header;
        alert.message =
            (bundle ? bundle->localizedString(message, message, kDefaultStringTable) : message)
                .arg(kSecurePrintPasscodeMinDigits)
                .arg(kSecurePrintPasscodeMaxDigits);
        ShowAlert(alert);
        return OkGuardDecision::RefusedSecurePrintPasscode;
    }
    case kJobTypeLANFax:
        if (source->faxRecipientCount() > 0)
            return OkGuardDecision::Print;
        source->runFaxSetup();
        return OkGuardDecision::OpenedFaxSetup;
    default:
        return OkGuardDecision::Print;
    }
}

Status ConsumedOkResult()
{
    return RunningOn105OrLater() ? kOkCommandConsumed : kNoError;
}

} // namespace orvan
