// The watermark file: one property-list file in the machine-wide "Orvan/"
// data folder holding every saved watermark (a dictionary under its
// watermark key), the menu's name list ("WatermarkListEntries") and the font
// programs stored for the printing side (data under a PostScript or subset
// font name).
//
// Every operation reads the whole file, changes its part and writes it back,
// replacing the file atomically. A file that exists but cannot be read (not
// a property list, not a dictionary, too large) reads as no dictionary; before
// an operation writes a new file over it, the unreadable one is set aside
// beside itself as "<name>.unreadable-<yyyyMMdd-HHmmss>" (SetAsideUnreadableFile),
// so nothing the user had is lost.
#pragma once

#include "watermark/WatermarkData.h"

#include "settings/PropertyValue.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace orvan {

class Bundle;

// The file the panel, the drawing and the fax cover sheet share.
inline const QString kWatermarkFile = QStringLiteral("com.orvan.printing.watermarks.plist");
inline const QString kWatermarkListKey = QStringLiteral("WatermarkListEntries");
// Files larger than this are treated as unreadable instead of being parsed.
inline constexpr qint64 kMaxWatermarkFileSize = 64 * 1024 * 1024;

// --- The record as a dictionary -------------------------------------------

// The record's dictionary: four strings, offsets as 32-bit reals, xPos/yPos
// as 64-bit reals, the int-typed integers, both colours as 32-bit reals and,
// only when the record has a glyph array, "glyphCount" (SInt32) and "glyphs"
// (two bytes per id, most significant first).
PropertyValue WatermarkDictionary(const _WatermarkData& record);
// Overwrites each field whose key `dictionary` holds with a value of the
// right kind; absent keys leave their fields. A text too long for its buffer
// is not taken. "glyphs" replaces the array (odd lengths drop the last byte);
// "glyphCount" is read on its own.
void ReadWatermarkDictionary(const PropertyValue& dictionary, _WatermarkData& record);

// Parses the bytes of a watermark file; nullopt unless they hold a
// property-list dictionary of at most kMaxWatermarkFileSize bytes.
std::optional<PropertyValue> ParseWatermarkFile(const QByteArray& bytes);
// The file's dictionary; nullopt when it is missing or unreadable.
std::optional<PropertyValue> ReadWatermarkFile(const QString& file);
// Full path of the file in the "Orvan/" folder; empty when none can be made.
QString WatermarkFilePath(const QString& file);

// --- Store operations -------------------------------------------------------

// Fills `record` from the entry `name` and returns true; keys the entry lacks
// leave their fields. When the file or the entry is missing the record is
// cleared and the answer is false.
bool loadWatermarkData(const QString& file, const QString& name, _WatermarkData& record);
// Stores the record under its watermark key, replacing an entry of that
// name, and writes the file (creating it when missing). A failed write prints
// "saveWatermarkData: Error <code> writing data to file" on standard error.
// The name list is not touched.
bool saveWatermarkData(const QString& file, const _WatermarkData& record);
// The names under "WatermarkListEntries", in menu order (entries that are
// not strings are passed over); nullopt when the file or the key is missing.
std::optional<QStringList> loadWatermarkList(const QString& file);
// Stores the name list and writes the file (creating it); errors are silent.
void saveWatermarkList(const QString& file, const QStringList& list);
// Removes the entry `name` and the first list entry equal to it
// (case-sensitive); font programs stay. Nothing when the file can't be read.
void removeWatermarkData(const QString& file, const QString& name);
// Stores a font program under `key`. Does nothing when the file does not
// exist yet: unlike the saves it never creates the file.
void storeFontData(const QString& file, const QString& key, const QByteArray& data);
// Appends the bytes stored under `key` to `out`; nothing when the file or the
// key is missing.
void loadFontData(const QString& file, const QString& key, QByteArray& out);

// --- First use ------------------------------------------------------------

// Writes the three first-use text watermarks ("DraftWatermark",
// "ConfidentialWatermark", "CopyWatermark" looked up in the bundle's
// "Localizable" table) and the list of their names.
void CreateDefaultWatermarks(const QString& file, const Bundle& bundle);

} // namespace orvan
