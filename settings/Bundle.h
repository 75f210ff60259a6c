// The plug-in's bundle: its folder with Info.plist and Resources/. Finds
// resources by name and looks localised texts up by table and key.
#pragma once

#include "settings/PropertyValue.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace orvan {

inline const QString kBundleIdentifier =
    QStringLiteral("com.orvan.print.pde.orvanfeatures.bellona");
inline const QString kDefaultStringTable = QStringLiteral("Localizable");
// Menus built from tables show this where a text is missing.
inline const QString kStringNotFound = QStringLiteral("STRING NOT FOUND");

class Bundle
{
public:
    // Opens the bundle folder; a folder without a readable Info.plist gives
    // a bundle with an empty information dictionary (isValid() false).
    explicit Bundle(QString folder, QString language = {});
    ~Bundle();
    Bundle(const Bundle&) = delete;
    Bundle& operator=(const Bundle&) = delete;

    bool isValid() const;
    QString path() const;
    QString resourcesPath() const;
    QString identifier() const; // "CFBundleIdentifier"
    const PropertyValue& infoDictionary() const;

    // Path of a resource file (name with its extension, or name and type);
    // empty when there is none.
    QString resourcePath(const QString& name, const QString& type = {}) const;

    // The localised text of a key in a table; nullopt when the table has no
    // entry for it (so callers can tell a missing text from an empty one).
    std::optional<QString> localizedString(const QString& key,
                                           const QString& table = kDefaultStringTable) const;
    // The text, or the fallback when missing.
    QString localizedString(const QString& key, const QString& fallback,
                            const QString& table) const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace orvan
