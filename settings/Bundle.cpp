#include "settings/Bundle.h"

#include "settings/PropertyList.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QTranslator>

#include <vector>

namespace orvan {

struct Bundle::Private
{
    QString path;
    PropertyValue info = PropertyValue::dictionary();
    bool valid = false;
    // Compiled string tables, most specific language first, English last.
    std::vector<std::unique_ptr<QTranslator>> tables;
};

namespace {

// Language folders to search, most specific first: de_DE, de, then en.
QStringList languageFolders(const QString& requested)
{
    const QString name = requested.isEmpty() ? QLocale().name() : requested;
    QStringList folders;
    auto add = [&folders](const QString& language) {
        const QString folder = language + QStringLiteral(".lproj");
        if (!language.isEmpty() && !folders.contains(folder))
            folders << folder;
    };
    add(name);
    add(name.section(QLatin1Char('_'), 0, 0));
    add(QStringLiteral("en"));
    return folders;
}

} // namespace

Bundle::Bundle(QString folder, QString language) : d(std::make_unique<Private>())
{
    d->path = QDir::cleanPath(folder);
    QFile infoFile(d->path + QStringLiteral("/Info.plist"));
    if (infoFile.open(QIODevice::ReadOnly)) {
        if (auto info = readPropertyList(infoFile.readAll()); info && info->isDictionary()) {
            d->info = std::move(*info);
            d->valid = true;
        }
    }
    for (const QString& languageFolder : languageFolders(language)) {
        const QDir dir(resourcesPath() + QLatin1Char('/') + languageFolder);
        const QStringList files = dir.entryList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
        for (const QString& file : files) {
            auto table = std::make_unique<QTranslator>();
            if (table->load(dir.filePath(file)))
                d->tables.push_back(std::move(table));
        }
    }
}

Bundle::~Bundle() = default;

bool Bundle::isValid() const
{
    return d->valid;
}

QString Bundle::path() const
{
    return d->path;
}

QString Bundle::resourcesPath() const
{
    return d->path + QStringLiteral("/Resources");
}

QString Bundle::identifier() const
{
    const PropertyValue* id = d->info.find(QStringLiteral("CFBundleIdentifier"));
    return id ? id->toString() : QString();
}

const PropertyValue& Bundle::infoDictionary() const
{
    return d->info;
}

QString Bundle::resourcePath(const QString& name, const QString& type) const
{
    if (name.isEmpty())
        return {};
    const QString file = type.isEmpty() ? name : name + QLatin1Char('.') + type;
    const QString direct = resourcesPath() + QLatin1Char('/') + file;
    if (QFileInfo::exists(direct))
        return direct;
    for (const QString& languageFolder : languageFolders({})) {
        const QString localised =
            resourcesPath() + QLatin1Char('/') + languageFolder + QLatin1Char('/') + file;
        if (QFileInfo::exists(localised))
            return localised;
    }
    return {};
}

std::optional<QString> Bundle::localizedString(const QString& key, const QString& table) const
{
    if (key.isEmpty())
        return std::nullopt;
    const QByteArray context = table.toUtf8();
    const QByteArray source = key.toUtf8();
    for (const auto& translator : d->tables) {
        QString text = translator->translate(context.constData(), source.constData());
        if (!text.isNull() && !text.isEmpty())
            return text;
    }
    return std::nullopt;
}

QString Bundle::localizedString(const QString& key, const QString& fallback,
                                const QString& table) const
{
    return localizedString(key, table).value_or(fallback);
}

} // namespace orvan
