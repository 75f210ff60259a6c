#include "host/Presets.h"

#include "fax/FaxOptions.h"
#include "paperoutput/PaperOutputRecord.h"
#include "settings/Preferences.h"
#include "settings/TicketFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace orvan {

namespace {

const QString kPresetSuffix = QStringLiteral(".plist");

QString PresetPath(const QString& name)
{
    return PresetsFolder() + QLatin1Char('/') + name + kPresetSuffix;
}

// Removes a key from a dictionary item of the ticket, keeping its client.
void RemoveFromItem(Ticket& ticket, const QString& item, const QString& key)
{
    const TicketItem* present = ticket.item(item);
    if (!present || !present->value.contains(key))
        return;
    TicketItem changed = *present;
    changed.value.remove(key);
    ticket.setItem(changed.client, item, changed.value, changed.locked);
}

} // namespace

QString PresetsFolder()
{
    const QString preferences = UserPreferencesFolder();
    return preferences.isEmpty() ? QString() : preferences + QStringLiteral("/presets");
}

QStringList PresetNames()
{
    QStringList names;
    const QDir folder(PresetsFolder());
    for (const QFileInfo& file :
         folder.entryInfoList({QLatin1Char('*') + kPresetSuffix}, QDir::Files, QDir::Name))
        names << file.completeBaseName();
    return names;
}

std::optional<QString> InvalidPresetName(const QString& name)
{
    if (name.trimmed().isEmpty())
        return QStringLiteral("a preset needs a name");
    if (name.contains(QLatin1Char('/')) || name.startsWith(QLatin1Char('.')) || name.size() > 100)
        return QStringLiteral("\"%1\" cannot be a preset's name (no \"/\", no leading \".\", at "
                              "most 100 characters)")
            .arg(name);
    return std::nullopt;
}

Ticket WithoutPasscodes(const Ticket& printSettings)
{
    Ticket ticket = printSettings;
    RemoveFromItem(ticket, kJobTypeKey, kSecurePrintPasswordKey);
    RemoveFromItem(ticket, kFaxOptionsKey, kFaxCreditCardKey);
    return ticket;
}

bool SavePreset(const QString& name, const PrintSession& session, QString* error)
{
    if (const auto why = InvalidPresetName(name)) {
        *error = *why;
        return false;
    }
    const QString folder = PresetsFolder();
    if (folder.isEmpty() || !QDir().mkpath(folder) ||
        !QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                           QFileDevice::ExeOwner)) {
        *error = QStringLiteral("cannot make the presets folder %1").arg(folder);
        return false;
    }
    PrintSession preset;
    preset.printSettings() = WithoutPasscodes(session.printSettings());
    preset.pageFormat() = session.pageFormat();
    int code = 0;
    QString why;
    if (WritePropertyListFile(PresetPath(name), sessionToPropertyList(preset), &code, &why,
                              FilePrivacy::OwnerOnly))
        return true;
    *error = QStringLiteral("cannot save the preset %1: %2").arg(name, why);
    return false;
}

bool ApplyPreset(const QString& name, PrintSession& session, QString* error)
{
    if (InvalidPresetName(name) || !QFileInfo::exists(PresetPath(name))) {
        *error = QStringLiteral("there is no preset named %1").arg(name);
        return false;
    }
    PrintSession preset;
    QString why;
    if (!loadTicketFile(PresetPath(name), preset, &why)) {
        *error = QStringLiteral("the preset %1 cannot be read: %2").arg(name, why);
        return false;
    }
    session.printSettings() = preset.printSettings();
    session.pageFormat() = preset.pageFormat();
    return true;
}

} // namespace orvan
