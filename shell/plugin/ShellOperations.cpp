#include "shell/plugin/ShellOperations.h"

#include "printerdesc/DeviceProfile.h"
#include "printerdesc/InstallableOptions.h"
#include "printerdesc/PPDAccess.h"
#include "settings/OwnedHandle.h"
#include "shell/ExceptionGuard.h"
#include "shell/PDEHooks.h"
#include "shell/PDEShell.h"
#include "shell/ShellPane.h"

#include <QFileInfo>

#include <dlfcn.h>

#include <cstdio>

namespace orvan {

namespace {

PDEShellContext* shellOf(PDEContext context)
{
    return static_cast<PDEShellContext*>(context);
}

// Panels are exported functions of this plug-in, found by name; the color
// options panel would come from its own bundle.
PanelInterfaceFunction resolvePanel(const char* name)
{
    if (qstrcmp(name, kColorOptionPanelName) == 0) {
        // Opened once and kept: its panel's code runs until the process ends.
        static const OwnedHandle<void, dlclose> colorOptions = [] {
            const QString library =
                QStringLiteral("%1/ColorOptions.so").arg(QLatin1String(kColorOptionsBundlePath));
            return OwnedHandle<void, dlclose>(dlopen(QFile::encodeName(library).constData(),
                                                     RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE));
        }();
        return colorOptions
                   ? reinterpret_cast<PanelInterfaceFunction>(dlsym(colorOptions.get(), name))
                   : nullptr;
    }
    Dl_info info{};
    if (!dladdr(reinterpret_cast<void*>(&resolvePanel), &info) || !info.dli_fname)
        return nullptr;
    // NOLOAD only adds a reference to this library, which the owner drops.
    const OwnedHandle<void, dlclose> self(dlopen(info.dli_fname, RTLD_NOW | RTLD_NOLOAD));
    return self ? reinterpret_cast<PanelInterfaceFunction>(dlsym(self.get(), name)) : nullptr;
}

} // namespace

Status RegisterMyHelpBook(const Bundle* bundle)
{
    if (!bundle || bundle->path().isEmpty())
        return kNoError;
    return QFileInfo(bundle->resourcesPath() + QStringLiteral("/help")).isDir() ? kNoError
                                                                                : kFileNotFound;
}

Status ShellPrologOperation(PDEContext* context, std::uint32_t* creator, QString* kind,
                            QString* title, std::uint32_t* maxWidth, std::uint32_t* maxHeight)
{
    return GuardedStatus("Prolog", [&] {
        PDEShellContext* shell = nullptr;
        const Status status = ShellProlog(GetPDEBundle(), _PanelInterfaces, resolvePanel, &shell,
                                          creator, kind, title, maxWidth, maxHeight);
        if (context)
            *context = shell;
        return status;
    });
}

Status ShellInitializeOperation(PDEContext context, std::uint32_t* flags, void* hostReference,
                                QWidget* parent, PrintSession* session)
{
    return GuardedStatus("Initialize", [&] {
        OrvanPDEInitialize(session);
        PDEShellContext* shell = shellOf(context);
        if (!shell || !session)
            return kMissingContext;
        shell->session = session;
        if (flags)
            *flags = 0;

        Ticket* printSettings = nullptr;
        if (GetTicketFromSession(session, kPrintSettingsTicketKey, &printSettings) != kNoError ||
            !printSettings)
            std::fputs("Initialize()::GetTicketFromSession() failed.\n", stderr);

        if (ppd_file_t* ppd = PPDGetCurrent(); ppd && PPDIsOrvanPrinter(ppd)) {
            QDPInitialize(shell->bundle);
            LoadInstallableOptions(ppd, _InstalledFeatures);
        }
        RegisterMyHelpBook(shell->bundle);

        ShellPane* pane = parent ? new ShellPane(shell, parent) : nullptr;
        for (LoadedPanel& panel : shell->panels) {
            if (panel.tabNumber == -1)
                continue;
            panel.pane = pane ? pane->addPanelPane(panel.title) : nullptr;
            std::uint32_t panelFlags = 0;
            panel.table.Initialize(panel.context, &panelFlags, hostReference, panel.pane, session);
        }
        // The tab shown last in this process comes back; the first one otherwise.
        if (_lastTabIndex() < 1 || _lastTabIndex() > shell->panelCount)
            _lastTabIndex() = shell->panelCount > 0 ? 1 : 0;
        if (pane)
            pane->showInitialTab(_lastTabIndex());
        return kNoError;
    });
}

Status ShellSyncOperation(PDEContext context, PrintSession* session, bool direction)
{
    return GuardedStatus("Sync", [&] { return ShellSync(shellOf(context), session, direction); });
}

Status ShellGetSummaryTextOperation(PDEContext context, PropertyValue* titles,
                                    PropertyValue* values)
{
    return GuardedStatus("GetSummaryText",
                         [&] { return ShellGetSummaryText(shellOf(context), titles, values); });
}

Status ShellOpenOperation(PDEContext context)
{
    return GuardedStatus("Open", [&] {
        const Status result = OrvanPDEOpen();
        PDEShellContext* shell = shellOf(context);
        if (!shell)
            return kMissingContext;
        for (LoadedPanel& panel : shell->panels)
            if (panel.tabNumber != -1)
                panel.table.Open(panel.context);
        return result;
    });
}

Status ShellCloseOperation(PDEContext context)
{
    return GuardedStatus("Close", [&] { return ShellClose(shellOf(context)); });
}

Status ShellTerminateOperation(PDEContext context, Status status)
{
    return GuardedStatus("Terminate", [&] { return ShellTerminate(shellOf(context), status); });
}

} // namespace orvan
