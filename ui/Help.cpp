#include "ui/Help.h"

#include "settings/Bundle.h"

#include <QDesktopServices>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace orvan {

namespace {

const QString kStartPage = QStringLiteral("index.html");

HelpUrlOpener& currentOpener()
{
    static HelpUrlOpener opener;
    return opener;
}

bool pageHasAnchor(const QString& path, const QString& anchor)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QString html = QString::fromUtf8(file.readAll());
    const QRegularExpression target(QStringLiteral("\\b(?:id|name)\\s*=\\s*[\"']%1[\"']")
                                        .arg(QRegularExpression::escape(anchor)));
    return target.match(html).hasMatch();
}

// The book's page that holds the anchor: the start page first, then the
// others in name order.
QString pageWithAnchor(const QString& book, const QString& anchor)
{
    QStringList pages;
    QDirIterator it(book, {QStringLiteral("*.htm"), QStringLiteral("*.html")}, QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        pages << QDir(book).relativeFilePath(it.next());
    pages.sort();
    pages.removeAll(kStartPage);
    pages.prepend(kStartPage);
    for (const QString& page : pages) {
        if (pageHasAnchor(book + QLatin1Char('/') + page, anchor))
            return page;
    }
    return kStartPage;
}

} // namespace

HelpUrlOpener SetHelpUrlOpener(HelpUrlOpener opener)
{
    HelpUrlOpener previous = std::move(currentOpener());
    currentOpener() = std::move(opener);
    return previous;
}

Status HelpUrl(const Bundle* bundle, const QString& page, const QString& anchor, QUrl* url)
{
    if (!bundle || !url)
        return kBadParameter;
    const PropertyValue* bookName =
        bundle->infoDictionary().find(QStringLiteral("CFBundleHelpBookName"));
    if (!bookName || !bookName->isString())
        return kBadParameter;
    const PropertyValue* folder =
        bundle->infoDictionary().find(QStringLiteral("CFBundleHelpBookFolder"));
    const QString book =
        bundle->resourcesPath() + QLatin1Char('/') +
        (folder && folder->isString() ? folder->toString() : QStringLiteral("help"));
    if (!QFileInfo(book).isDir())
        return kFileNotFound;

    QString target = page;
    if (target.isEmpty())
        target = anchor.isEmpty() ? kStartPage : pageWithAnchor(book, anchor);
    const QString path = QDir::cleanPath(book + QLatin1Char('/') + target);
    // A page outside the book (a "../" path) is no page of it.
    if (!path.startsWith(QDir::cleanPath(book) + QLatin1Char('/')) || !QFileInfo(path).isFile())
        return kFileNotFound;

    QUrl result = QUrl::fromLocalFile(path);
    if (!anchor.isEmpty())
        result.setFragment(anchor);
    *url = result;
    return kNoError;
}

Status DisplayHelp(const Bundle* bundle, const QString& page, const QString& anchor)
{
    QUrl url;
    if (const Status status = HelpUrl(bundle, page, anchor, &url); status != kNoError)
        return status;
    const HelpUrlOpener& opener = currentOpener();
    const bool opened = opener ? opener(url) : QDesktopServices::openUrl(url);
    return opened ? kNoError : kHelpNotOpened;
}

} // namespace orvan
