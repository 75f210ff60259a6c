// Renders one of the Paper/Output setup dialogs offscreen to a PNG file, as
// it opens with sample values, so it can be looked at without a display.
// Usage: orvan_setup_dialog_screenshot BUNDLE DIALOG OUT.png
//   DIALOG: secure-print, delayed-print, saved-job, booklet, booklet-no-folder,
//           booklet-options
#include "paperoutput/JobTypeSetups.h"
#include "paperoutput/LongDateClock.h"
#include "settings/Bundle.h"
#include "ui/AlertBox.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <cstdio>
#include <functional>
#include <map>

using namespace orvan;

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (argc != 4) {
        std::fprintf(stderr,
                     "usage: %s BUNDLE secure-print|delayed-print|saved-job|booklet|"
                     "booklet-no-folder|booklet-options OUT.png\n",
                     argv[0]);
        return 2;
    }
    const Bundle bundle(QString::fromLocal8Bit(argv[1]));
    const QString output = QString::fromLocal8Bit(argv[3]);
    InstallMessageBoxAlertPresenter();

    QString passcode;
    std::int64_t time = LongDateToSeconds(QDate::currentDate(), QTime(18, 30));
    PaperOutputRecord record;
    record.savedJobName = QStringLiteral("Quarterly Report");
    record.defaultLocation = true;
    BookletCreationParams booklet{
        kBookletFoldStaple, kBookletLayoutOn, kDrawOutlinesOn, kUnset, 18, 5};
    const std::map<QByteArray, std::function<bool()>> dialogs = {
        {"secure-print", [&] { return RunModalSecurePrintSetup(&bundle, passcode, nullptr); }},
        {"delayed-print", [&] { return RunModalDelayedPrintSetup(&bundle, time, nullptr); }},
        {"saved-job", [&] { return RunModalSavedJobDialog(&bundle, record, nullptr); }},
        {"booklet", [&] { return RunModalBookletCreationDialog(&bundle, booklet, nullptr); }},
        {"booklet-no-folder",
         [&] {
             booklet.fold = kFinishingNone;
             return RunModalBookletCreationDialog(&bundle, booklet, nullptr, false);
         }},
        {"booklet-options",
         [&] { return RunModalBookletOptionsDialog(&bundle, booklet, nullptr); }},
    };
    const auto run = dialogs.find(QByteArray(argv[2]));
    if (run == dialogs.end()) {
        std::fprintf(stderr, "unknown dialog %s\n", argv[2]);
        return 2;
    }
    bool saved = false;
    QTimer::singleShot(0, [&] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            saved = dialog->grab().save(output, "PNG");
            dialog->reject();
        }
    });
    run->second();
    if (!saved) {
        std::fprintf(stderr, "cannot write %s\n", argv[3]);
        return 1;
    }
    return 0;
}
