// The current printer's PPD and the translation between its choices and the
// integer values the panels store. The current PPD is opened on first use and
// stays open for the process until PPDCloseCurrent (one dialog at a time, no
// locks). Every operation tolerates null or empty arguments and answers null,
// 0, -1 or does nothing; none shows an alert.
#pragma once

#include "printerdesc/PpdFile.h"
#include "settings/MenuModel.h"
#include "settings/TextEncoding.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace orvan {

class Ticket;

// The current PPD: the PPD file of the current print session's current
// printer, opened the first time it is asked for. Null when there is no
// session, printer or PPD location, or the file cannot be opened (the next
// call tries again).
ppd_file_t* PPDGetCurrent();
// Closes the current PPD; nothing when none is open.
void PPDCloseCurrent();
// Makes an already opened PPD the current one, closing the previous one. For
// a host given a PPD file without a queue, and for tests.
void PPDSetCurrent(PpdFilePtr ppd);

// The choice stored under the main keyword in the ticket's PPD dictionary;
// nullopt when the ticket or keyword is missing or the keyword is absent.
std::optional<QString> PPDCopyCurrentChoice(const Ticket* ticket, const QString& mainKeyword);
// Stores the choice under the main keyword in the ticket's PPD dictionary.
void PPDSetCurrentChoice(Ticket* ticket, const QString& mainKeyword, const QString& choice);
// The option's default choice; nullopt without a PPD, keyword or option.
std::optional<QString> PPDCopyDefaultChoice(ppd_file_t* ppd, const QString& mainKeyword);

// The value of the first row of the keyword's choice map whose choice equals
// the given one; -1 when the keyword has no map or no row matches.
std::int32_t PPDTicketValueForChoice(const QString& mainKeyword, const QString& choice);
// The choice keyword of the first row of the keyword's choice map carrying
// the value; null when nothing matches.
const char* PPDChoiceForTicketValue(const QString& mainKeyword, std::int32_t value);
// Stores the choice that carries the value (PPDChoiceForTicketValue) under the
// main keyword in the ticket's PPD dictionary; a value without a choice
// stores nothing and leaves the ticket's choice as it was.
void PPDSetCurrentChoiceForTicketValue(Ticket* ticket, const QString& mainKeyword,
                                       std::int32_t value);
// The ticket's current choice for the keyword, or when it has none the PPD's
// default, translated by PPDTicketValueForChoice (possibly -1) into *value.
// With neither, *value is left untouched and the result is false.
bool PPDGetTicketValueForChoiceOrDefault(ppd_file_t* ppd, const Ticket* ticket,
                                         const QString& mainKeyword, std::int32_t* value);
// Removes from the ticket's PPD dictionary every entry the PPD does not offer
// (no such option, or no such choice of it; "Custom.<size>" counts as the
// option's "Custom" choice), so that nothing the printer would not know is
// sent to it. Says so on stderr, one line per entry:
// "orvan: the printer does not offer Resolution=9999x9999dpi; the choice is dropped".
// Returns the number removed; 0 without a PPD or ticket.
int PPDDropChoicesNotOffered(ppd_file_t* ppd, Ticket* ticket);

// The human-readable text of the choice as the PPD gives it; nullopt when
// anything is missing.
std::optional<QString> PPDCopyChoiceText(ppd_file_t* ppd, const QString& mainKeyword,
                                         const QString& choice);

// Rebuilds the menu from the option's choices: each choice the keyword's
// choice map knows becomes an item with the PPD's text, the command and the
// choice's value as reference. Unknown choices are skipped with
// "Skipped unrecognized choice in PPD: <choice>" on stderr; a missing option
// leaves the menu empty with "Expected PPD option not found: <keyword>".
// With checkConstraints, the marks are first reset to the defaults and each
// choice is marked in turn; a choice whose marking gives a conflict is left
// out. The marks stay as the last choice tried left them. Returns the menu's
// item count; 0 (menu untouched) when the menu, PPD or keyword is missing.
int PPDPopulateMenuWithChoices(MenuModel* menu, ppd_file_t* ppd, const QString& mainKeyword,
                               std::uint32_t commandId, bool checkConstraints);

// The encoding the PPD declares ("*LanguageEncoding"): ISOLatin1, ISOLatin2,
// ISOLatin5, JIS83-RKSJ (Shift JIS), UTF-8/UTF8; anything else, no entry or
// no PPD: Mac Roman.
TextEncoding PPDGetEncoding(ppd_file_t* ppd);
// A string of the PPD (keyword or text) as it arrives from libcups, decoded
// from the file's own bytes with PPDGetEncoding (Mac Roman for bytes not
// valid in it). Where libcups has already converted a text to UTF-8 from
// another reading of the file (no "*LanguageEncoding", ISOLatin5,
// WindowsANSI), that conversion is undone first.
QString PPDDecodeString(ppd_file_t* ppd, const QByteArray& bytes);
// The reverse, for looking keywords up in the PPD.
QByteArray PPDEncodeString(ppd_file_t* ppd, const QString& text);

// True when the PPD's manufacturer is exactly "Orvan" ("Orvan Systems" is
// not): only then are the device profile and installable options loaded.
bool PPDIsOrvanPrinter(ppd_file_t* ppd);

// The current PPD's custom page size limits in points (1/72 inch); 432, 432,
// 864, 864 when no PPD is open or it offers no custom sizes.
void GetMediaLimits(double* minimumWidth, double* minimumHeight, double* maximumWidth,
                    double* maximumHeight);

} // namespace orvan
