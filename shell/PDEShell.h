// The shell: the one pane the Print dialog shows for this plug-in. It loads
// the built-in panels, keeps them in tab order, syncs them with the tickets
// (the panel on screen last), switches between them, and guards the dialog's
// OK button. This is the display-free part; ShellPane shows it.
#pragma once

#include "settings/Bundle.h"
#include "settings/JobTypes.h"
#include "shell/PDEInterface.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace orvan {

// What the shell's OK guard needs from the first panel (the Paper/Output
// panel): the job type, the secure-print passcode, the fax recipients, and
// a way to run the fax setup.
class PrintGuardSource
{
public:
    virtual ~PrintGuardSource() = default;
    virtual std::int32_t jobType() const = 0;
    virtual QString securePrintPasscode() const = 0;
    virtual int faxRecipientCount() const = 0;
    // Creates the fax options and recipient list when missing and runs the
    // fax setup dialog on them.
    virtual void runFaxSetup() = 0;
};

// The panel that owns the booklet values (the Paper/Output panel) runs the
// booklet creation dialog on its own record for any panel that offers it, so
// the job has one set of booklet values however the user reaches them.
class BookletCreationSource
{
public:
    virtual ~BookletCreationSource() = default;
    // Runs the dialog over `parent` and keeps its values on OK (true).
    virtual bool runBookletCreation(QWidget* parent) = 0;
};

// Every panel context of this plug-in derives from this, so the shell can
// ask the first panel for its guard source and find the booklet values.
class PanelContextBase
{
public:
    virtual ~PanelContextBase() = default;
    virtual PrintGuardSource* printGuardSource() { return nullptr; }
    virtual BookletCreationSource* bookletCreationSource() { return nullptr; }
};

// One loaded panel, in tab order.
struct LoadedPanel
{
    PDEInterfaceTable table{}; // a private copy of the panel's operations
    PDEContext context = nullptr;
    QString title;
    QString kind;
    QWidget* pane = nullptr;    // set when the shell opens
    std::int32_t tabNumber = 0; // 1-based; -1 marks a record to skip
};

// How the shell shows and hides panes; the widget pane implements it, tests
// record what it is told.
class ShellView
{
public:
    virtual ~ShellView() = default;
    virtual void setContainerVisible(bool visible) = 0;
    virtual void showPane(const LoadedPanel& panel, bool shown) = 0;
    virtual void setTabValue(std::int32_t tabNumber) = 0;
};

// Finds a panel's interface function by its exported name; null when absent.
using PanelResolver = std::function<PanelInterfaceFunction(const char* name)>;

struct PDEShellContext
{
    const Bundle* bundle = nullptr;
    QString title;
    std::vector<LoadedPanel> panels;
    std::int16_t panelCount = 0;
    PrintSession* session = nullptr;
    ShellView* view = nullptr;
    bool firstSyncDone = false;
};

// The first loaded panel that runs the booklet creation dialog; null when
// none does or there is no shell.
BookletCreationSource* ShellBookletCreationSource(PDEShellContext* context);

// The built-in panels, in tab order; null-terminated.
extern const char* const _PanelInterfaces[];
// The name whose panel lives in a separate bundle, and that bundle's location.
inline constexpr const char* kColorOptionPanelName = "GetColorOptionPanelInterface";
inline constexpr const char* kColorOptionsBundlePath = "/usr/lib/orvan/PDEs/ColorOptions.plugin";

// The tab number of the panel on screen; process-wide, kept between dialogs.
std::int32_t& _lastTabIndex();

// Prolog: makes the context (null bundle allowed), reports the pane's kind,
// creator, localised title and maximum size, and loads the panels named by
// `names` through `resolve`. The context is also kept process-wide.
Status ShellProlog(const Bundle* bundle, const char* const* names, const PanelResolver& resolve,
                   PDEShellContext** context, std::uint32_t* creator, QString* kind, QString* title,
                   std::uint32_t* maxWidth, std::uint32_t* maxHeight);

// Loads panels while the name at position (panels loaded so far) is not null.
// A panel that fails is tried again at once: every listed panel is part of the
// plug-in itself, so the loader does not skip one.
void LoadBuiltInPanels(PDEShellContext* context, const char* const* names,
                       const PanelResolver& resolve);

// Sync in one direction: every panel in tab order, the one on screen last;
// writing also puts the shell's own items into the print-settings ticket.
Status ShellSync(PDEShellContext* context, PrintSession* session, bool direction);
Status ShellGetSummaryText(PDEShellContext* context, PropertyValue* titles, PropertyValue* values);
Status ShellClose(PDEShellContext* context);
// Terminates every panel, frees the context and clears the process-wide slot,
// then closes the current PPD and unloads the installable options and the
// device profile.
Status ShellTerminate(PDEShellContext* context, Status status);

// The context Prolog made, for PDESync.
PDEShellContext* CurrentShellContext();

// Panel switching.
void selectPanel(PDEShellContext* context, std::int32_t tabNumber);
std::int32_t nextTabNumber(const PDEShellContext* context);
std::int32_t previousTabNumber(const PDEShellContext* context);

// Control identifiers and commands the shell handles.
inline constexpr std::int32_t kShellTabControlID = 16;
inline constexpr std::int32_t kShellPreviousButtonID = 1966;
inline constexpr std::int32_t kShellNextButtonID = 1967;
inline constexpr std::uint32_t kCommandOK = 0x6F6B2020;            // 'ok  '
inline constexpr std::uint32_t kCommandHelp = 0x68656C70;          // 'help'
inline constexpr std::uint32_t kCommandNextPanel = 0x51467570;     // 'QFup'
inline constexpr std::uint32_t kCommandPreviousPanel = 0x5146646E; // 'QFdn'

// A control hit on a shell control: true when handled (the tab changed or
// previous/next ran), false when the event passes on (the tab already shown,
// an unknown control).
bool ShellHandleControlHit(PDEShellContext* context, std::int32_t controlID,
                           std::int32_t tabControlValue);

// What OK does.
enum class OkGuardDecision
{
    Print,                      // pass the event on: the job prints
    RefusedSecurePrintPasscode, // the passcode notice was shown; the dialog stays open
    OpenedFaxSetup,             // the fax setup ran instead of printing
};
// Looks at the first panel's job type: secure print (6) needs a passcode,
// fax (5) a recipient. Shows the notice (through ShowAlert) or runs the fax
// setup as needed.
OkGuardDecision ShellOkGuard(PDEShellContext* context);
// The result the handler returns when OK was consumed: -12345678 from 10.5
// on, 0 before.
Status ConsumedOkResult();

inline constexpr int kSecurePrintPasscodeMinDigits = 4;
inline constexpr int kSecurePrintPasscodeMaxDigits = 10;

} // namespace orvan
