#include "host/PrintDialog.h"

#include "host/DocumentPreparer.h"
#include "host/JobSubmission.h"
#include "host/PageSetupView.h"
#include "host/PaperSizes.h"
#include "host/PresetPopup.h"
#include "host/Presets.h"
#include "host/PreviewPane.h"
#include "host/WatermarkStampSource.h"
#include "printerdesc/PPDAccess.h"
#include "printerdesc/PpdFile.h"
#include "settings/TicketFile.h"
#include "shell/CommandEvent.h"
#include "shell/PDEShell.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <cstdio>

namespace orvan {

std::optional<QString> PpdPathForPrinter(const PrinterEntry& printer, const QString& pluginFolder,
                                         QString* error)
{
    if (!printer.ppdFile.isEmpty())
        return printer.ppdFile;
    // An IPP printer given by its address is described by the sample printer.
    if (printer.isSample || !printer.printerUri.isEmpty()) {
        const QString path = pluginFolder + QStringLiteral("/Resources/") + kSamplePpdResource;
        if (QFileInfo::exists(path))
            return path;
        if (error)
            *error = QStringLiteral("the sample printer's PPD is missing: %1").arg(path);
        return std::nullopt;
    }
    return FetchQueuePPD(printer.queueName, error);
}

PrintDialog::PrintDialog(PrintSession& session, PluginHost& plugin,
                         std::vector<PrinterEntry> printers, Options options, QWidget* parent)
    : QDialog(parent), m_session(session), m_plugin(plugin), m_printers(std::move(printers)),
      m_options(std::move(options)), m_printerPopup(new QComboBox(this)),
      m_presets(new PresetPopup(this)), m_copies(new QSpinBox(this)),
      m_allPages(new QRadioButton(tr("All"), this)),
      m_pageRange(new QRadioButton(tr("From:"), this)), m_fromPage(new QSpinBox(this)),
      m_toPage(new QSpinBox(this)), m_panePopup(new QComboBox(this)),
      m_paneStack(new QStackedWidget(this)), m_status(new QLabel(this)),
      m_pageSetupView(new PageSetupView(m_pageSetup, this)), m_preview(new PreviewPane(this)),
      m_panelChanged(new QTimer(this))
{
    PrinterEntry pdf;
    pdf.displayName = tr("Save as PDF");
    pdf.isSample = true; // the panels show the sample printer's choices
    pdf.savesPdf = true;
    m_printers.push_back(pdf);
    setObjectName(QStringLiteral("PrintDialog"));
    setWindowTitle(
        m_options.files.isEmpty()
            ? tr("Print")
            : tr("Print \u201C%1\u201D").arg(QFileInfo(m_options.files.first()).fileName()));
    m_printerPopup->setObjectName(QStringLiteral("PrinterPopup"));
    m_copies->setObjectName(QStringLiteral("CopiesField"));
    m_allPages->setObjectName(QStringLiteral("AllPagesButton"));
    m_pageRange->setObjectName(QStringLiteral("PageRangeButton"));
    m_fromPage->setObjectName(QStringLiteral("FromPageField"));
    m_toPage->setObjectName(QStringLiteral("ToPageField"));
    m_panePopup->setObjectName(QStringLiteral("PanePopup"));
    m_paneStack->setObjectName(QStringLiteral("PluginPaneHolder"));
    m_status->setObjectName(QStringLiteral("StatusLabel"));
    m_status->setWordWrap(true);
    m_status->setStyleSheet(QStringLiteral("color: palette(mid);"));

    for (const PrinterEntry& printer : m_printers)
        m_printerPopup->addItem(printer.displayName);
    m_copies->setRange(1, 9999);
    m_fromPage->setRange(1, 99999);
    m_toPage->setRange(1, 99999);
    m_toPage->setValue(1);
    m_allPages->setChecked(true);
    m_fromPage->setEnabled(false);
    m_toPage->setEnabled(false);
    connect(m_pageRange, &QRadioButton::toggled, this, [this](bool on) {
        m_fromPage->setEnabled(on);
        m_toPage->setEnabled(on);
    });
    connect(m_fromPage, &QSpinBox::valueChanged, this, [this](int value) {
        if (m_toPage->value() < value)
            m_toPage->setValue(value);
    });

    auto* pages = new QHBoxLayout;
    pages->addWidget(m_allPages);
    pages->addSpacing(12);
    pages->addWidget(m_pageRange);
    pages->addWidget(m_fromPage);
    pages->addWidget(new QLabel(tr("to:"), this));
    pages->addWidget(m_toPage);
    pages->addStretch(1);
    auto* form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight);
    form->addRow(tr("Printer:"), m_printerPopup);
    form->addRow(tr("Presets:"), m_presets);
    m_copies->setMinimumWidth(80);
    auto* copies = new QHBoxLayout;
    copies->addWidget(m_copies);
    copies->addStretch(1);
    form->addRow(tr("Copies:"), copies);
    form->addRow(tr("Pages:"), pages);
    form->addRow(m_pageSetupView);
    for (QAbstractButton* button :
         {static_cast<QAbstractButton*>(m_allPages), static_cast<QAbstractButton*>(m_pageRange)})
        connect(button, &QAbstractButton::toggled, this, &PrintDialog::refreshPreview);
    for (QSpinBox* box : {m_fromPage, m_toPage})
        connect(box, &QSpinBox::valueChanged, this, &PrintDialog::refreshPreview);
    connect(m_pageSetupView, &PageSetupView::changed, this, &PrintDialog::pageSetupChanged);
    m_panelChanged->setSingleShot(true);
    m_panelChanged->setInterval(400);
    connect(m_panelChanged, &QTimer::timeout, this, [this] {
        if (m_pluginRunning)
            m_plugin.sync(&m_session, false);
        refreshPreview();
    });
    qApp->installEventFilter(this);

    // The plug-in's panes, one at a time, chosen from a pop-up as in the
    // system's Print dialogs.
    auto* paneRow = new QHBoxLayout;
    paneRow->addStretch(1);
    paneRow->addWidget(m_panePopup);
    paneRow->addStretch(1);
    m_panePopup->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(m_panePopup, &QComboBox::activated, this,
            [this](int item) { showPane(m_panePopup->itemData(item).toInt()); });

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* cancel = buttons->addButton(QDialogButtonBox::Cancel);
    QPushButton* printButton = buttons->addButton(tr("Print"), QDialogButtonBox::AcceptRole);
    cancel->setObjectName(QStringLiteral("CancelButton"));
    printButton->setObjectName(QStringLiteral("PrintButton"));
    printButton->setDefault(true);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(printButton, &QPushButton::clicked, this, &PrintDialog::print);

    auto* controls = new QVBoxLayout;
    controls->addLayout(form);
    controls->addLayout(paneRow);
    controls->addWidget(m_paneStack, 1);
    auto* columns = new QHBoxLayout;
    columns->addWidget(m_preview);
    columns->addSpacing(12);
    columns->addLayout(controls, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addWidget(m_status);
    layout->addWidget(buttons);

    if (!m_options.initialPreset.isEmpty()) {
        QString why;
        if (ApplyPreset(m_options.initialPreset, m_session, &why))
            m_presets->reload(m_options.initialPreset);
        else
            m_lastError = why;
    }
    showTicketInControls();
    m_printerPopup->setCurrentIndex(m_options.initialPrinter);
    choosePrinter(m_options.initialPrinter);
    if (!m_lastError.isEmpty())
        m_status->setText(
            tr("%1; the settings shown are those the dialog started with.").arg(m_lastError));
    connect(m_printerPopup, &QComboBox::activated, this, &PrintDialog::choosePrinter);
    connect(m_presets, &PresetPopup::defaultsChosen, this,
            [this] { replaceSettings(Ticket(), Ticket()); });
    connect(m_presets, &PresetPopup::presetChosen, this, &PrintDialog::applyPreset);
    connect(m_presets, &PresetPopup::saveChosen, this, &PrintDialog::askPresetName);
    if (!m_options.files.isEmpty())
        m_preview->setDocument(m_options.files.first());
    refreshPreview();
}

PrintDialog::~PrintDialog()
{
    stopPlugin();
}

void PrintDialog::showTicketInControls()
{
    const Ticket& settings = m_session.printSettings();
    m_copies->setValue(CopiesFromTicket(settings));
    const auto [first, last] = PageRangeFromTicket(settings);
    const bool all = first == 1 && last == kAllPagesLast;
    m_allPages->setChecked(all);
    m_pageRange->setChecked(!all);
    if (!all) {
        m_fromPage->setValue(first);
        m_toPage->setValue(std::min(last, m_toPage->maximum()));
    }
}

void PrintDialog::writeControlsToTicket()
{
    m_pageSetup.writeTo(m_session, jobName());
    if (m_allPages->isChecked())
        WriteCopiesAndPages(m_session.printSettings(), m_copies->value(), 1, kAllPagesLast);
    else
        WriteCopiesAndPages(m_session.printSettings(), m_copies->value(), m_fromPage->value(),
                            m_toPage->value());
}

bool PrintDialog::attachPrinter(const PrinterEntry& printer, QString* error)
{
    auto ppd = PpdPathForPrinter(printer, m_plugin.folder(), error);
    if (!printer.queueName.isEmpty())
        m_fetchedPpd = TemporaryFile(ppd.value_or(QString()));
    if (ppd) {
        QString why;
        if (const PpdFilePtr opened = OpenPPDFile(*ppd, &why)) {
            // What the printer would not know is not carried on to it.
            PPDDropChoicesNotOffered(opened.get(), &m_session.printSettings());
        } else {
            if (error)
                *error = QStringLiteral("cannot open the PPD file %1: %2").arg(*ppd, why);
            ppd.reset();
        }
    }
    // A queue without a usable PPD still prints; the panels then show their
    // defaults.
    m_session.setCurrentPrinter(Printer{printer.queueName, ppd.value_or(QString())});
    return ppd.has_value();
}

void PrintDialog::startPlugin()
{
    if (m_plugin.prolog() != kNoError && !m_plugin.shell().running()) {
        fail(tr("The printer features could not be started."));
        return;
    }
    std::vector<QWidget*> parents;
    QSize largest;
    for (const auto& pane : m_plugin.panes()) {
        auto* widget = new QWidget(m_paneStack);
        widget->setObjectName(pane->isShell() ? QStringLiteral("PluginPane")
                                              : pane->exportedName());
        m_paneStack->addWidget(widget);
        parents.push_back(widget);
        if (pane->running()) {
            m_panePopup->addItem(pane->title(), static_cast<int>(parents.size() - 1));
            largest = largest.expandedTo(
                QSize(static_cast<int>(pane->maxWidth()), static_cast<int>(pane->maxHeight())));
        }
    }
    m_paneStack->setMinimumSize(largest);
    m_plugin.initialize(parents, &m_session);
    m_plugin.sync(&m_session, true);
    m_plugin.open();
    m_pluginRunning = true;
    m_currentPane = 0;
    m_panePopup->setVisible(m_panePopup->count() > 1);
    m_panePopup->setCurrentIndex(0);
    m_paneStack->setCurrentIndex(0);
}

void PrintDialog::stopPlugin()
{
    if (!m_pluginRunning)
        return;
    m_plugin.close();
    m_plugin.terminate(kNoError);
    m_pluginRunning = false;
    m_panePopup->clear();
    while (QWidget* widget = m_paneStack->widget(0)) {
        m_paneStack->removeWidget(widget);
        delete widget;
    }
}

void PrintDialog::showPane(int index)
{
    const auto& panes = m_plugin.panes();
    if (!m_pluginRunning || index == m_currentPane || index < 0 ||
        index >= static_cast<int>(panes.size()))
        return;
    panes[static_cast<std::size_t>(m_currentPane)]->sync(&m_session, false);
    panes[static_cast<std::size_t>(index)]->sync(&m_session, true);
    m_currentPane = index;
    m_panePopup->setCurrentIndex(m_panePopup->findData(index));
    m_paneStack->setCurrentIndex(index);
}

void PrintDialog::choosePrinter(int index)
{
    if (index < 0 || index >= static_cast<int>(m_printers.size()) || index == m_currentPrinter)
        return;
    // The settings made so far stay in the tickets across the change.
    if (m_pluginRunning)
        m_plugin.sync(&m_session, false);
    stopPlugin();
    m_currentPrinter = index;
    QString why;
    const PrinterEntry& printer = m_printers[static_cast<std::size_t>(index)];
    if (!attachPrinter(printer, &why))
        m_status->setText(
            tr("This printer's options could not be read (%1); its defaults are shown.").arg(why));
    else
        m_status->clear();
    offerPapers(printer);
    startPlugin();
}

void PrintDialog::offerPapers(const PrinterEntry& printer)
{
    m_pageSetup.setPapers(
        PapersOfPrinter(printer, m_session.currentPrinter().value_or(Printer{}).ppdPath));
    if (!m_pageSetupRead) { // the first printer: a ticket given to the dialog may hold a page setup
        m_pageSetup.readFrom(m_session);
        m_pageSetupRead = true;
    }
    m_pageSetupView->showModel();
    // The panels read the paper, layout and job name from the tickets.
    m_pageSetup.writeTo(m_session, jobName());
    refreshPreview();
}

QString PrintDialog::jobName() const
{
    return m_options.files.isEmpty() ? QString() : QFileInfo(m_options.files.first()).fileName();
}

void PrintDialog::pageSetupChanged()
{
    m_pageSetup.writeTo(m_session, jobName());
    // The panels take the new paper and layout in.
    if (m_pluginRunning) {
        m_plugin.sync(&m_session, false);
        m_plugin.sync(&m_session, true);
    }
    refreshPreview();
}

PreviewSettings PrintDialog::previewSettings() const
{
    PreviewSettings settings;
    settings.setup = m_pageSetup.setup();
    if (m_pageRange->isChecked()) {
        settings.firstPage = m_fromPage->value();
        settings.lastPage = m_toPage->value();
    }
    const Ticket& ticket = m_session.printSettings();
    const QString duplex = ticket.ppdDictionary().find(QStringLiteral("Duplex"))
                               ? ticket.ppdDictionary().find(QStringLiteral("Duplex"))->toString()
                               : QString();
    settings.twoSided =
        (!duplex.isEmpty() && duplex != QLatin1String("None")) ||
        ticket.integer(QStringLiteral("com.apple.print.PrintSettings.PMDuplexing")).value_or(1) > 1;
    settings.watermark = WatermarkStampForSession(m_session, settings.setup.paper.points);
    return settings;
}

bool PrintDialog::waitForPreview(int milliseconds)
{
    const auto ready = [this] {
        return m_preview->isShowingPages() || m_preview->problem() != DocumentProblem::None;
    };
    QEventLoop loop;
    connect(m_preview, &PreviewPane::spreadShown, &loop, &QEventLoop::quit);
    connect(m_preview, &PreviewPane::documentChecked, &loop, &QEventLoop::quit);
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    if (!ready())
        loop.exec();
    return ready();
}

void PrintDialog::refreshPreview()
{
    if (m_preview)
        m_preview->setSettings(previewSettings());
}

bool PrintDialog::eventFilter(QObject* watched, QEvent* event)
{
    // A change in a pane: take its settings in once the user pauses.
    if ((event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::KeyRelease) &&
        watched->isWidgetType() && m_paneStack->isAncestorOf(static_cast<QWidget*>(watched)))
        m_panelChanged->start();
    return QDialog::eventFilter(watched, event);
}

void PrintDialog::fail(const QString& message)
{
    m_lastError = message;
    QMessageBox box(QMessageBox::Warning, tr("Cannot Print"), message, QMessageBox::Ok, this);
    box.setObjectName(QStringLiteral("PrintErrorBox"));
    box.exec();
}

void PrintDialog::replaceSettings(const Ticket& printSettings, const Ticket& pageFormat)
{
    stopPlugin();
    m_session.printSettings() = printSettings;
    m_session.pageFormat() = pageFormat;
    showTicketInControls();
    m_pageSetup.readFrom(m_session);
    m_pageSetupView->showModel();
    m_pageSetup.writeTo(m_session, jobName());
    startPlugin();
    refreshPreview();
}

void PrintDialog::applyPreset(const QString& name)
{
    PrintSession preset;
    QString why;
    if (!ApplyPreset(name, preset, &why)) {
        m_presets->showCurrent();
        fail(tr("The preset could not be used: %1").arg(why));
        return;
    }
    replaceSettings(preset.printSettings(), preset.pageFormat());
    m_presets->reload(name);
}

bool PrintDialog::savePreset(const QString& name)
{
    writeControlsToTicket();
    if (m_pluginRunning)
        m_plugin.sync(&m_session, false);
    QString why;
    if (!SavePreset(name, m_session, &why)) {
        fail(tr("The settings could not be saved as a preset: %1").arg(why));
        return false;
    }
    m_presets->reload(name);
    return true;
}

void PrintDialog::askPresetName()
{
    QInputDialog ask(this);
    ask.setObjectName(QStringLiteral("PresetNameDialog"));
    ask.setWindowTitle(tr("Save Settings as Preset"));
    ask.setLabelText(tr("Preset name:"));
    if (ask.exec() == QDialog::Accepted)
        savePreset(ask.textValue());
}

void PrintDialog::print()
{
    // The plug-in may refuse OK (a secure print without a passcode, a fax
    // without recipients); the dialog then stays open as it is.
    CommandEvent ok(kCommandOK);
    QCoreApplication::sendEvent(this, &ok);
    if (ok.consumed())
        return;
    writeControlsToTicket();
    m_plugin.sync(&m_session, false);
    if (!m_options.saveTicketPath.isEmpty()) {
        QString why;
        if (!saveTicketFile(m_options.saveTicketPath, m_session, &why)) {
            fail(tr("The job's settings could not be saved: %1").arg(why));
            return;
        }
    }
    const PrinterEntry& printer = m_printers[static_cast<std::size_t>(m_currentPrinter)];
    for (const QString& file : m_options.files) {
        QString message;
        if (CheckDocument(file, &message) != DocumentProblem::None) {
            fail(message);
            return;
        }
    }
    if (printer.savesPdf) {
        if (saveAsPdf())
            accept();
        return;
    }
    if (!m_options.files.isEmpty()) {
        if (printer.queueName.isEmpty() && printer.printerUri.isEmpty()) {
            fail(tr("The sample printer is not connected to a print queue. Choose a CUPS queue to "
                    "print, "
                    "or save the job's settings with --save-ticket."));
            return;
        }
        const submission::SubmissionResult sent =
            SubmitSession(m_session, printer, m_options.files);
        for (const QString& notice : sent.notices)
            std::fprintf(stderr, "orvan-print: warning: %s\n", notice.toLocal8Bit().constData());
        if (!sent.error.isEmpty()) {
            fail(tr("The job could not be sent to %1: %2").arg(printer.displayName, sent.error));
            return;
        }
    }
    accept();
}

bool PrintDialog::saveAsPdf()
{
    if (m_options.files.isEmpty()) {
        fail(tr("There is no document to save as PDF."));
        return false;
    }
    QString path = m_options.pdfPath;
    if (path.isEmpty()) {
        const QFileInfo source(m_options.files.first());
        path = QFileDialog::getSaveFileName(
            this, tr("Save as PDF"),
            source.absoluteDir().filePath(source.completeBaseName() + QStringLiteral(".pdf")),
            tr("PDF files (*.pdf)"));
        if (path.isEmpty())
            return false;
    }
    const PreviewSettings settings = previewSettings();
    DocumentPreparation preparation;
    preparation.firstPage = settings.firstPage;
    preparation.lastPage = settings.lastPage;
    preparation.watermark = settings.watermark;
    preparation.sheets = settings.setup;
    const PreparationResult result = PrepareDocument(m_options.files.first(), preparation, path);
    if (!result.ok()) {
        fail(DocumentProblemText(result.problem, m_options.files.first(), result.detail));
        return false;
    }
    return true;
}

void PrintDialog::done(int result)
{
    stopPlugin();
    QDialog::done(result);
}

} // namespace orvan
