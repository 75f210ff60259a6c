// The Print dialog: printer pop-up (with "Save as PDF"), copies and pages,
// the page setup, the preview, the plug-in's panes, Cancel and Print. It owns no job settings
// itself: everything lives in the print session's tickets, which the plug-in reads and writes on
// Sync.
#pragma once

#include "host/PageSetupModel.h"
#include "host/PluginHost.h"
#include "host/PreviewRenderer.h"
#include "host/PrinterList.h"
#include "host/TemporaryFile.h"

#include <QDialog>
#include <QStringList>

#include <vector>

class QComboBox;
namespace orvan {
class PresetPopup;
}
class QLabel;
class QRadioButton;
class QSpinBox;
class QTimer;
class QStackedWidget;

namespace orvan {

class PageSetupView;
class PreviewPane;

class PrintDialog : public QDialog
{
    Q_OBJECT
public:
    struct Options
    {
        QStringList files;
        QString saveTicketPath; // written on Print when set
        int initialPrinter = 0; // index into printers
        QString pdfPath;        // where "Save as PDF" writes; asked for when empty
        QString initialPreset;  // applied before the plug-in starts; a failure shows in the dialog
    };

    PrintDialog(PrintSession& session, PluginHost& plugin, std::vector<PrinterEntry> printers,
                Options options, QWidget* parent = nullptr);
    ~PrintDialog() override;

    // The message of the last failure to print, for callers and tests.
    QString lastError() const { return m_lastError; }
    // Saves the settings as shown as a preset; false after telling the user why.
    bool savePreset(const QString& name);

    // Shows the plug-in's pane at index (0 = the shell's pane), as the pane
    // pop-up does: the pane leaving the screen writes its values to the
    // tickets, the one coming reads them.
    void showPane(int index);
    // The settings the preview draws with, from the controls and tickets.
    PreviewSettings previewSettings() const;
    // Runs the event loop until the preview shows a sheet or its problem, at
    // most `milliseconds` (for screenshots); true when it did.
    bool waitForPreview(int milliseconds);

protected:
    void done(int result) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void choosePrinter(int index);
    bool attachPrinter(const PrinterEntry& printer, QString* error);
    void startPlugin();
    void stopPlugin();
    void print();
    void showTicketInControls();
    void writeControlsToTicket();
    void fail(const QString& message);
    void offerPapers(const PrinterEntry& printer);
    void pageSetupChanged();
    QString jobName() const;
    void refreshPreview();
    bool saveAsPdf();
    // Restarts the plug-in on other tickets (a preset, the printer's defaults).
    void replaceSettings(const Ticket& printSettings, const Ticket& pageFormat);
    void applyPreset(const QString& name);
    void askPresetName();

    PrintSession& m_session;
    PluginHost& m_plugin;
    std::vector<PrinterEntry> m_printers;
    Options m_options;
    TemporaryFile m_fetchedPpd; // a queue's PPD fetched from CUPS
    QString m_lastError;
    int m_currentPrinter = -1;
    bool m_pluginRunning = false;

    QComboBox* m_printerPopup;
    PresetPopup* m_presets;
    QSpinBox* m_copies;
    QRadioButton* m_allPages;
    QRadioButton* m_pageRange;
    QSpinBox* m_fromPage;
    QSpinBox* m_toPage;
    QComboBox* m_panePopup;
    QStackedWidget* m_paneStack;
    int m_currentPane = 0;
    QLabel* m_status;
    PageSetupModel m_pageSetup;
    PageSetupView* m_pageSetupView;
    PreviewPane* m_preview;
    QTimer* m_panelChanged; // the panes' settings are taken in after a pause
    bool m_pageSetupRead = false;
};

// The PPD location of a printer entry: its own PPD file when it has one, the
// queue's PPD from CUPS, or the sample printer's PPD in the plug-in's resources.
std::optional<QString> PpdPathForPrinter(const PrinterEntry& printer, const QString& pluginFolder,
                                         QString* error);

} // namespace orvan
