#include "printerdesc/PPDAccess.h"

#include "settings/PrintSession.h"
#include "settings/SettingMaps.h"
#include "settings/Ticket.h"

#include <QFile>

#include <array>
#include <cstdio>
#include <vector>

namespace orvan {

namespace {

// The longest PPD path accepted, in bytes.
constexpr qsizetype kMaxPPDPathLength = 1024;

PpdFilePtr& CurrentPPD()
{
    static PpdFilePtr current;
    return current;
}

const PPDChoiceMap* ChoiceMapForKeyword(const QString& mainKeyword)
{
    if (mainKeyword.isEmpty())
        return nullptr;
    for (const MainKeywordMap* row = _MainKeywordMap; row->mainKeyword; ++row) {
        if (mainKeyword == QLatin1StringView(row->mainKeyword))
            return row->choices;
    }
    return nullptr;
}

// libcups converts the texts of some PPDs to UTF-8 while it reads them, from
// the character set it takes the "*LanguageEncoding" to name; other files
// come through byte for byte. Two of its readings differ from the encoding
// the file declares (ISOLatin5 read as Cyrillic, no entry read as Latin 1),
// and WindowsANSI has no place in our list; all three convert every byte
// they meet, so converting the UTF-8 back gives the file's own bytes, which
// are then decoded with PPDGetEncoding. nullptr: the texts arrive unchanged.
struct LibcupsReading
{
    const char* entry;   // "*LanguageEncoding", compared as libcups does (any case)
    const char* charset; // what libcups read the bytes as
    bool declared;       // the same as PPDGetEncoding: its UTF-8 is the text
};
constexpr LibcupsReading kLibcupsReadings[] = {
    {"", "ISO-8859-1", false},         {"ISOLatin1", "ISO-8859-1", true},
    {"ISOLatin2", "ISO-8859-2", true}, {"ISOLatin5", "ISO-8859-5", false},
    {"JIS83-RKSJ", "CP932", true},     {"MacStandard", "MACINTOSH", true},
    {"WindowsANSI", "CP1252", false},
};

const LibcupsReading* ReadingOf(ppd_file_t* ppd)
{
    const QByteArray entry = PpdLanguageEncodingEntry(ppd);
    for (const LibcupsReading& reading : kLibcupsReadings) {
        if (entry.compare(reading.entry, Qt::CaseInsensitive) == 0)
            return &reading;
    }
    return nullptr;
}

QString Decode(const QByteArray& bytes, TextEncoding encoding)
{
    if (auto text = decodeText(bytes, encoding))
        return *text;
    if (auto text = decodeText(bytes, TextEncoding::MacRoman))
        return *text;
    return QString::fromLatin1(bytes);
}

QByteArray Encode(const QString& text, TextEncoding encoding)
{
    if (auto bytes = encodeText(text, encoding))
        return *bytes;
    return text.toUtf8();
}

void WriteDiagnostic(const char* message, const QString& what)
{
    std::fprintf(stderr, "%s%s\n", message, what.toLocal8Bit().constData());
}

} // namespace

ppd_file_t* PPDGetCurrent()
{
    PpdFilePtr& current = CurrentPPD();
    if (current)
        return current.get();
    const PrintSession* session = GetCurrentPrintSession();
    if (!session || !session->currentPrinter())
        return nullptr;
    const QByteArray path = QFile::encodeName(session->currentPrinter()->ppdPath);
    if (path.isEmpty() || path.size() > kMaxPPDPathLength)
        return nullptr;
    // No localisation hook: the dialog shows the PPD's own texts.
    current = OpenPPDFile(QFile::decodeName(path));
    return current.get();
}

void PPDCloseCurrent()
{
    CurrentPPD().reset();
}

void PPDSetCurrent(PpdFilePtr ppd)
{
    CurrentPPD() = std::move(ppd);
}

std::optional<QString> PPDCopyCurrentChoice(const Ticket* ticket, const QString& mainKeyword)
{
    if (!ticket || mainKeyword.isEmpty())
        return std::nullopt;
    const PropertyValue* choice = ticket->ppdDictionary().find(mainKeyword);
    if (!choice || !choice->isString())
        return std::nullopt;
    return choice->toString();
}

void PPDSetCurrentChoice(Ticket* ticket, const QString& mainKeyword, const QString& choice)
{
    if (!ticket || mainKeyword.isEmpty() || choice.isNull())
        return;
    ticket->ppdDictionary().insert(mainKeyword, choice);
}

std::optional<QString> PPDCopyDefaultChoice(ppd_file_t* ppd, const QString& mainKeyword)
{
    if (!ppd || mainKeyword.isEmpty())
        return std::nullopt;
    const auto choice = PpdDefaultChoice(ppd, PPDEncodeString(ppd, mainKeyword));
    if (!choice)
        return std::nullopt;
    return PPDDecodeString(ppd, *choice);
}

std::int32_t PPDTicketValueForChoice(const QString& mainKeyword, const QString& choice)
{
    const PPDChoiceMap* map = ChoiceMapForKeyword(mainKeyword);
    if (!map || choice.isNull())
        return -1;
    for (const PPDChoiceMap* row = map; row->choice; ++row) {
        if (choice == QLatin1StringView(row->choice))
            return row->ticketValue;
    }
    return -1;
}

const char* PPDChoiceForTicketValue(const QString& mainKeyword, std::int32_t value)
{
    const PPDChoiceMap* map = ChoiceMapForKeyword(mainKeyword);
    if (!map)
        return nullptr;
    for (const PPDChoiceMap* row = map; row->choice; ++row) {
        if (row->ticketValue == value)
            return row->choice;
    }
    return nullptr;
}

bool PPDGetTicketValueForChoiceOrDefault(ppd_file_t* ppd, const Ticket* ticket,
                                         const QString& mainKeyword, std::int32_t* value)
{
    if (!value)
        return false;
    std::optional<QString> choice = PPDCopyCurrentChoice(ticket, mainKeyword);
    if (!choice)
        choice = PPDCopyDefaultChoice(ppd, mainKeyword);
    if (!choice)
        return false;
    *value = PPDTicketValueForChoice(mainKeyword, *choice);
    return true;
}

std::optional<QString> PPDCopyChoiceText(ppd_file_t* ppd, const QString& mainKeyword,
                                         const QString& choice)
{
    if (!ppd || mainKeyword.isEmpty() || choice.isNull())
        return std::nullopt;
    const auto text =
        PpdChoiceText(ppd, PPDEncodeString(ppd, mainKeyword), PPDEncodeString(ppd, choice));
    if (!text)
        return std::nullopt;
    return PPDDecodeString(ppd, *text);
}

int PPDDropChoicesNotOffered(ppd_file_t* ppd, Ticket* ticket)
{
    if (!ppd || !ticket)
        return 0;
    std::vector<QString> dropped;
    for (const auto& [keyword, choice] : ticket->ppdDictionary().asDictionary()) {
        QString offered = choice.toString();
        if (offered.startsWith(QLatin1String("Custom.")))
            offered = QStringLiteral("Custom");
        if (!choice.isString() || !PPDCopyChoiceText(ppd, keyword, offered))
            dropped.push_back(keyword);
    }
    for (const QString& keyword : dropped) {
        const QString choice = ticket->ppdDictionary().find(keyword)->toString(QStringLiteral("?"));
        std::fprintf(stderr, "orvan: the printer does not offer %s=%s; the choice is dropped\n",
                     keyword.toLocal8Bit().constData(), choice.toLocal8Bit().constData());
        ticket->ppdDictionary().remove(keyword);
    }
    return static_cast<int>(dropped.size());
}

int PPDPopulateMenuWithChoices(MenuModel* menu, ppd_file_t* ppd, const QString& mainKeyword,
                               std::uint32_t commandId, bool checkConstraints)
{
    if (!menu || !ppd || mainKeyword.isEmpty())
        return 0;
    if (checkConstraints)
        PpdMarkDefaults(ppd);
    menu->clear();
    const QByteArray keyword = PPDEncodeString(ppd, mainKeyword);
    const auto choices = PpdOptionChoices(ppd, keyword);
    if (!choices) {
        WriteDiagnostic("Expected PPD option not found: ", mainKeyword);
        return menu->count();
    }
    for (const PpdChoice& choice : *choices) {
        // A choice that passes stays marked until the next one is tried, so
        // afterwards the marks reflect the last choice tried.
        if (checkConstraints && PpdMarkOption(ppd, keyword, choice.keyword) > 0)
            continue;
        const QString choiceKeyword = PPDDecodeString(ppd, choice.keyword);
        // A value of -1 counts as unknown, even where a map gives it on
        // purpose ("Lighten1").
        const std::int32_t value = PPDTicketValueForChoice(mainKeyword, choiceKeyword);
        if (value == -1) {
            WriteDiagnostic("Skipped unrecognized choice in PPD: ", choiceKeyword);
            continue;
        }
        menu->append(MenuItem{PPDDecodeString(ppd, choice.text), commandId, value, false});
    }
    return menu->count();
}

TextEncoding PPDGetEncoding(ppd_file_t* ppd)
{
    if (!ppd)
        return TextEncoding::MacRoman;
    const QByteArray entry = PpdLanguageEncodingEntry(ppd);
    if (entry == "ISOLatin1")
        return TextEncoding::ISOLatin1;
    if (entry == "ISOLatin2")
        return TextEncoding::ISOLatin2;
    if (entry == "ISOLatin5")
        return TextEncoding::ISOLatin5;
    if (entry == "JIS83-RKSJ")
        return TextEncoding::ShiftJIS;
    if (entry == "UTF-8" || entry == "UTF8")
        return TextEncoding::UTF8;
    return TextEncoding::MacRoman;
}

QString PPDDecodeString(ppd_file_t* ppd, const QByteArray& bytes)
{
    if (!ppd)
        return Decode(bytes, TextEncoding::MacRoman);
    const LibcupsReading* reading = ReadingOf(ppd);
    if (!reading)
        return Decode(bytes, PPDGetEncoding(ppd));
    if (reading->declared)
        return Decode(bytes, TextEncoding::UTF8);
    const auto fileBytes = convertCharset(bytes, "UTF-8", reading->charset);
    return Decode(fileBytes.value_or(bytes), PPDGetEncoding(ppd));
}

QByteArray PPDEncodeString(ppd_file_t* ppd, const QString& text)
{
    if (!ppd)
        return Encode(text, TextEncoding::MacRoman);
    const LibcupsReading* reading = ReadingOf(ppd);
    if (!reading)
        return Encode(text, PPDGetEncoding(ppd));
    if (reading->declared)
        return text.toUtf8();
    const auto fileBytes =
        convertCharset(Encode(text, PPDGetEncoding(ppd)), reading->charset, "UTF-8");
    return fileBytes.value_or(text.toUtf8());
}

bool PPDIsOrvanPrinter(ppd_file_t* ppd)
{
    return ppd && PpdManufacturer(ppd) == "Orvan";
}

void GetMediaLimits(double* minimumWidth, double* minimumHeight, double* maximumWidth,
                    double* maximumHeight)
{
    PpdCustomSizeLimits limits{432, 432, 864, 864};
    if (const auto custom = PpdCustomLimits(PPDGetCurrent()))
        limits = *custom;
    if (minimumWidth)
        *minimumWidth = limits.minimumWidth;
    if (minimumHeight)
        *minimumHeight = limits.minimumHeight;
    if (maximumWidth)
        *maximumWidth = limits.maximumWidth;
    if (maximumHeight)
        *maximumHeight = limits.maximumHeight;
}

void PPDSetCurrentChoiceForTicketValue(Ticket* ticket, const QString& mainKeyword,
                                       std::int32_t value)
{
    if (const char* choice = PPDChoiceForTicketValue(mainKeyword, value))
        PPDSetCurrentChoice(ticket, mainKeyword, QString::fromLatin1(choice));
}

} // namespace orvan
