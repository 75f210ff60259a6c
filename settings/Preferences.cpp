#include "settings/Preferences.h"

#include "settings/PropertyList.h"
#include "settings/Status.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <cstdio>

namespace orvan {

namespace {

const QString kSharedFolderName = QStringLiteral("Orvan");

bool isWritableFolder(const QString& path)
{
    const QFileInfo info(path);
    return info.isDir() && info.isWritable();
}

// The content of a per-user file as a dictionary; nullopt when it cannot be
// read or is not one.
std::optional<PropertyValue> readUserDictionary(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    std::optional<PropertyValue> content = readPropertyList(file.readAll());
    if (!content || !content->isDictionary())
        return std::nullopt;
    return content;
}

// Renames a present file that does not read as a dictionary to
// "<path>.unreadable"; false when that fails.
bool setAsideUnreadable(const QString& path)
{
    if (!QFileInfo::exists(path) || readUserDictionary(path))
        return true;
    const QString aside = path + QStringLiteral(".unreadable");
    QFile::remove(aside);
    return QFile::rename(path, aside);
}

} // namespace

QString UserPreferencesFolder()
{
    const QString base = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return base.isEmpty() ? QString() : base + QStringLiteral("/orvan");
}

QString ApplicationSupportFolder()
{
    const QString overridden = qEnvironmentVariable("ORVAN_SHARED_DATA_DIR");
    if (!overridden.isEmpty())
        return QFileInfo(overridden).isDir() ? overridden : QString();
    const QString machineWide = QStringLiteral("/var/lib/orvan");
    if (isWritableFolder(machineWide))
        return machineWide;
    const QString userData = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (userData.isEmpty())
        return {};
    const QString folder = userData + QStringLiteral("/orvan");
    return QDir().mkpath(folder) ? folder : QString();
}

bool WritePropertyListFile(const QString& path, const PropertyValue& value, int* errorCode,
                           QString* errorText, FilePrivacy privacy)
{
    QString why;
    const std::optional<QByteArray> xml = writePropertyList(value, &why);
    if (!xml) {
        if (errorCode)
            *errorCode = kBadParameter;
        if (errorText)
            *errorText = why;
        return false;
    }
    QSaveFile file(path);
    // The permissions go to the temporary file, so the file is never readable by others.
    if (file.open(QIODevice::WriteOnly) &&
        (privacy == FilePrivacy::Default ||
         file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner)) &&
        file.write(*xml) == xml->size() && file.commit())
        return true;
    if (errorCode)
        *errorCode = file.error() == QFileDevice::NoError ? QFileDevice::WriteError : file.error();
    if (errorText)
        *errorText = file.errorString();
    file.cancelWriting();
    return false;
}

std::optional<PropertyValue> CopyUserPreferences(const QString& fileName)
{
    const QString folder = UserPreferencesFolder();
    if (folder.isEmpty())
        return std::nullopt;
    std::optional<PropertyValue> content = readUserDictionary(folder + QLatin1Char('/') + fileName);
    return content ? std::move(content) : PropertyValue::dictionary();
}

bool WriteUserPreferences(const QString& fileName, const PropertyValue& value)
{
    const QString folder = UserPreferencesFolder();
    const QString path = folder + QLatin1Char('/') + fileName;
    int code = QFileDevice::OpenError;
    if (!folder.isEmpty() && QDir().mkpath(folder)) {
        if (!setAsideUnreadable(path))
            code = QFileDevice::RenameError;
        else if (WritePropertyListFile(path, value, &code))
            return true;
    }
    std::fprintf(stderr, "WriteUserPreferences() failed (%d)\n", code);
    return false;
}

QString CopyPreferenceFileURL(const QString& fileName)
{
    const QString support = ApplicationSupportFolder();
    if (support.isEmpty())
        return {};
    QString location = support + QLatin1Char('/') + kSharedFolderName + QLatin1Char('/');
    if (!QFileInfo(location).isDir() && !QDir(support).mkdir(kSharedFolderName))
        return {};
    return location + fileName;
}

std::optional<PropertyValue> CopyXMLData(const QString& fileName)
{
    const QString path = CopyPreferenceFileURL(fileName);
    if (path.isEmpty())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    PropertyListError error;
    std::optional<PropertyValue> content = readPropertyList(file.readAll(), &error);
    if (!content)
        std::fprintf(stderr, "CopyXMLData()::CFPropertyListCreateFromXMLData() error: %s\n",
                     error.toString().toUtf8().constData());
    return content;
}

bool WriteXMLData(const QString& fileName, const PropertyValue& value)
{
    const QString path = CopyPreferenceFileURL(fileName);
    int code = QFileDevice::OpenError;
    QString why;
    if (!path.isEmpty() && WritePropertyListFile(path, value, &code, &why))
        return true;
    std::fprintf(stderr, "WriteXMLData(%s) failed (%d) %s\n", fileName.toUtf8().constData(), code,
                 why.toUtf8().constData());
    return false;
}

} // namespace orvan
