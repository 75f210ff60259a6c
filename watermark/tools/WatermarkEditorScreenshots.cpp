// Renders the watermark editor offscreen to PNG files, in text mode on a new
// watermark and in picture mode on a picture file, for looking at it:
//   orvan_watermark_editor_screenshots <plug-in folder> <picture> <output folder>
#include "settings/Bundle.h"
#include "shell/PanelText.h"
#include "watermark/WatermarkEditorDialog.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTimer>
#include <QWidget>

#include <cstdio>

using namespace orvan;

namespace {

// Runs the editor on `record`, lets `prepare` act on it, saves it to `file`
// and cancels it.
template <class Prepare>
void Shoot(const Bundle& bundle, _WatermarkData record, const QString& file, Prepare prepare)
{
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        prepare(*dialog);
        dialog->adjustSize();
        dialog->grab().save(file);
        dialog->reject();
    });
    int result = 0;
    RunModalWatermarkEditorDialog(&bundle, record, nullptr,
                                  PanelText(&bundle, QStringLiteral("Watermark Editor")), &result);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (argc != 4) {
        std::fprintf(stderr, "usage: %s <plug-in folder> <picture> <output folder>\n", argv[0]);
        return 2;
    }
    const Bundle bundle(QString::fromLocal8Bit(argv[1]));
    const QString picture = QString::fromLocal8Bit(argv[2]);
    const QString out = QString::fromLocal8Bit(argv[3]);

    _WatermarkData text;
    text.paperWidth = 612;
    text.paperHeight = 792;
    Shoot(bundle, text, out + "/watermark-editor-text.png", [](QDialog& dialog) {
        // As if typed: the field's edit signal reaches the editor.
        if (auto* field = dialog.findChild<QLineEdit*>("WatermarkTextField")) {
            field->setText(QStringLiteral("Internal"));
            emit field->textEdited(field->text());
        }
    });

    _WatermarkData image = text;
    image.filePath.assignIfFits(QStringView(picture));
    image.filename.assignIfFits(QStringView(picture.section(QLatin1Char('/'), -1)));
    image.scale = 100;
    image.density = 100;
    image.fontName.assignIfFits(std::string_view("ArialMT"));
    image.fontSize = 72;
    Shoot(bundle, image, out + "/watermark-editor-picture.png", [](QDialog&) {});
    return 0;
}
