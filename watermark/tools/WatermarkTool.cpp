// orvan-watermark: the watermark file for scripts and the printing side.
//
//   orvan-watermark list
//   orvan-watermark show NAME
//   orvan-watermark render NAME -o OUT.pdf [--page letter|a4]
//   orvan-watermark font NAME -o OUT.t42
//
// It reads the same watermark file as the dialog. "render" writes a one-page
// PDF of the watermark; "font" makes the watermark's subset font program,
// stores it in the file as the dialog does and writes it to OUT. Outputs are
// replaced atomically. Exit status: 0 done, 1 failed, 2 bad usage.

#include "watermark/FontProgram.h"
#include "watermark/WatermarkDocument.h"
#include "watermark/WatermarkStore.h"

#include <QCoreApplication>
#include <QSaveFile>
#include <QStringList>

#include <cstdio>
#include <optional>

namespace orvan {
namespace {

constexpr int kExitFailure = 1;
constexpr int kExitUsage = 2;

constexpr const char* kUsage = "Usage: orvan-watermark list\n"
                               "       orvan-watermark show NAME\n"
                               "       orvan-watermark render NAME -o OUT.pdf [--page letter|a4]\n"
                               "       orvan-watermark font NAME -o OUT.t42\n";

int usageError(const char* message)
{
    std::fprintf(stderr, "orvan-watermark: %s\n%s", message, kUsage);
    return kExitUsage;
}

int failure(const QString& message)
{
    std::fprintf(stderr, "orvan-watermark: %s\n", qPrintable(message));
    return kExitFailure;
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

struct Command
{
    QString verb;
    QString name;
    QString output;
    QSizeF page{612, 792};
};

// Parses the arguments; an error message when they don't make a command.
std::optional<Command> parse(const QStringList& arguments, const char** error)
{
    Command command;
    QStringList words;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (argument == QLatin1String("-o") || argument == QLatin1String("--page")) {
            if (++i == arguments.size()) {
                *error = "an option lacks its value";
                return std::nullopt;
            }
            if (argument == QLatin1String("-o")) {
                command.output = arguments[i];
            } else if (arguments[i] == QLatin1String("a4")) {
                command.page = QSizeF(595.28, 841.89);
            } else if (arguments[i] != QLatin1String("letter")) {
                *error = "the page is letter or a4";
                return std::nullopt;
            }
        } else {
            words.append(argument);
        }
    }
    if (words.isEmpty()) {
        *error = "no command";
        return std::nullopt;
    }
    command.verb = words.takeFirst();
    const bool wantsName = command.verb != QLatin1String("list");
    const bool wantsOutput =
        command.verb == QLatin1String("render") || command.verb == QLatin1String("font");
    if (!QStringList{"list", "show", "render", "font"}.contains(command.verb))
        *error = "unknown command";
    else if (words.size() != (wantsName ? 1 : 0))
        *error = wantsName ? "the command takes one watermark name" : "list takes no name";
    else if (wantsOutput == command.output.isEmpty())
        *error = wantsOutput ? "-o OUT is needed" : "-o is only for render and font";
    else {
        command.name = words.value(0);
        return command;
    }
    return std::nullopt;
}

int list()
{
    const std::optional<QStringList> names = loadWatermarkList(kWatermarkFile);
    if (!names)
        return failure(
            QStringLiteral("no watermark list in %1").arg(WatermarkFilePath(kWatermarkFile)));
    for (const QString& name : *names)
        std::printf("%s\n", qPrintable(name));
    return 0;
}

int show(const QString& name)
{
    _WatermarkData record;
    if (!loadWatermarkData(kWatermarkFile, name, record))
        return failure(QStringLiteral("no watermark named \"%1\"").arg(name));
    const PropertyValue dictionary = WatermarkDictionary(record);
    for (const auto& [key, value] : dictionary.asDictionary()) {
        const QString text = value.isData() ? value.toData().toHex(' ')
                             : value.isString()
                                 ? value.toString()
                                 : QString::number(value.toReal().value_or(0), 'g', 9);
        std::printf("%s: %s\n", qPrintable(key), qPrintable(text));
    }
    return 0;
}

int render(const Command& command)
{
    _WatermarkData record;
    if (!loadWatermarkData(kWatermarkFile, command.name, record))
        return failure(QStringLiteral("no watermark named \"%1\"").arg(command.name));
    const QByteArray pdf = RenderWatermarkPdf(std::move(record), command.page);
    if (pdf.isEmpty())
        return failure(QStringLiteral("the page could not be made"));
    if (!writeFile(command.output, pdf))
        return failure(QStringLiteral("%1 could not be written").arg(command.output));
    return 0;
}

int font(const Command& command)
{
    _WatermarkData record;
    if (!loadWatermarkData(kWatermarkFile, command.name, record))
        return failure(QStringLiteral("no watermark named \"%1\"").arg(command.name));
    if (record.textString.empty())
        return failure(QStringLiteral("\"%1\" is a picture watermark").arg(command.name));
    // A watermark never drawn has no glyphs yet: draw it once, as the
    // dialog's preview does, which stores them.
    if (record.validGlyphs().empty()) {
        MemoryDocument document;
        record.isText = 1;
        RenderWatermarkDocument(record, command.page, document, kWatermarkFile);
    }
    const std::optional<QString> subsetName = convertFont(kWatermarkFile, command.name);
    if (!subsetName)
        return failure(QStringLiteral("no font program for \"%1\" (font %2 missing?)")
                           .arg(command.name, record.fontName.toString()));
    QByteArray program;
    loadFontData(kWatermarkFile, *subsetName, program);
    if (program.isEmpty() || !writeFile(command.output, program))
        return failure(QStringLiteral("%1 could not be written").arg(command.output));
    std::printf("%s\n", qPrintable(*subsetName));
    return 0;
}

} // namespace
} // namespace orvan

int main(int argc, char** argv)
{
    using namespace orvan;
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.contains(QLatin1String("-h")) || arguments.contains(QLatin1String("--help"))) {
        std::fputs(kUsage, stdout);
        return 0;
    }
    const char* error = nullptr;
    const std::optional<Command> command = parse(arguments, &error);
    if (!command)
        return usageError(error);
    if (command->verb == QLatin1String("list"))
        return list();
    if (command->verb == QLatin1String("show"))
        return show(command->name);
    if (command->verb == QLatin1String("render"))
        return render(*command);
    return font(*command);
}
