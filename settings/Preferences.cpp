#include "settings/Preferences.h"

#include "settings/PropertyList.h"
#include "settings/Status.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
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
// read or is not one, with the reason in *why.
std::optional<PropertyValue> readUserDictionary(const QString& path, QString* why = nullptr)
{
    std::optional<PropertyValue> content = ReadPropertyListFile(path, why);
    if (content && !content->isDictionary()) {
        if (why)
            *why = QStringLiteral("not a dictionary");
        return std::nullopt;
    }
    return content;
}

// Sets a present file that does not read as a dictionary aside (see
// SetAsideUnreadableFile); false when it is still in the way.
bool setAsideUnreadable(const QString& path)
{
    QString why;
    if (!QFileInfo::exists(path) || readUserDictionary(path, &why))
        return true;
    SetAsideUnreadableFile(path, why);
    return !QFileInfo::exists(path);
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
    const FileError error = ReplaceFile(QFile::encodeName(path).toStdString(),
                                        std::string_view(xml->constData(), xml->size()), privacy);
    if (error.empty())
        return true;
    if (errorCode)
        *errorCode = QFileDevice::WriteError;
    if (errorText)
        *errorText = QString::fromLocal8Bit(error);
    return false;
}

std::optional<PropertyValue> ReadPropertyListFile(const QString& path, QString* error)
{
    std::vector<std::uint8_t> bytes;
    const FileError why =
        ReadWholeFile(QFile::encodeName(path).toStdString(), kMaxPropertyListFileSize, bytes);
    if (!why.empty()) {
        if (error)
            *error = QString::fromLocal8Bit(why);
        return std::nullopt;
    }
    PropertyListError parseError;
    auto value =
        readPropertyList(QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                                 qsizetype(bytes.size())),
                         &parseError);
    if (!value && error)
        *error = parseError.toString();
    return value;
}

void SetAsideUnreadableFile(const QString& path, const QString& why)
{
    if (!QFileInfo(path).isFile())
        return;
    const QString dated =
        path + QStringLiteral(".unreadable-") +
        QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString aside = dated;
    for (int n = 2; QFileInfo::exists(aside) && n < 100; ++n)
        aside = dated + QLatin1Char('-') + QString::number(n);
    if (QFile::rename(path, aside))
        std::fprintf(stderr, "orvan: %s could not be read (%s); it was set aside as %s\n",
                     QFile::encodeName(path).constData(), why.toLocal8Bit().constData(),
                     QFile::encodeName(aside).constData());
    else
        std::fprintf(stderr, "orvan: %s could not be read (%s) nor set aside\n",
                     QFile::encodeName(path).constData(), why.toLocal8Bit().constData());
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
    if (!folder.isEmpty() &&
        MakeFolder(QFile::encodeName(folder).toStdString(), FilePrivacy::OwnerOnly).empty()) {
        if (!setAsideUnreadable(path))
            code = QFileDevice::RenameError;
        else if (WritePropertyListFile(path, value, &code, nullptr, FilePrivacy::OwnerOnly))
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
    if (path.isEmpty() || !QFileInfo::exists(path))
        return std::nullopt;
    QString why;
    std::optional<PropertyValue> content = ReadPropertyListFile(path, &why);
    if (!content) {
        std::fprintf(stderr, "CopyXMLData()::CFPropertyListCreateFromXMLData() error: %s\n",
                     why.toUtf8().constData());
        SetAsideUnreadableFile(path, why);
    }
    return content;
}

bool WriteXMLData(const QString& fileName, const PropertyValue& value)
{
    const QString path = CopyPreferenceFileURL(fileName);
    int code = QFileDevice::OpenError;
    QString why;
    if (!path.isEmpty() && WritePropertyListFile(path, value, &code, &why, FilePrivacy::Default))
        return true;
    std::fprintf(stderr, "WriteXMLData(%s) failed (%d) %s\n", fileName.toUtf8().constData(), code,
                 why.toUtf8().constData());
    return false;
}

} // namespace orvan
