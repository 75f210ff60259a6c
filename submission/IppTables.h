// The tables that turn this system's ticket values into the standard IPP
// keywords and numbers: paper sizes (in hundredths of a millimetre), paper
// types, colours and trays, output bins, finishing processes, printed sides.
// A value without a row has no standard counterpart: the attribute is then
// left out (its PPD choice, when there is one, still travels).
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace orvan::submission {

// A value of a keyword-or-name attribute: a standard keyword, or (isName) a
// name of the user's or the PPD's own.
struct IppWord
{
    QString text;
    bool isName = false;
    friend bool operator==(const IppWord&, const IppWord&) = default;
};

struct MediaSizeRow
{
    std::int32_t stockSize; // "Size" of a stock dictionary
    int x;                  // hundredths of a millimetre, portrait
    int y;
};
struct WordRow
{
    std::int32_t ticketValue;
    const char* keyword;
};
struct ChoiceRow
{
    const char* choice; // PPD choice keyword
    const char* keyword;
};
struct FinishingRow
{
    const char* mainKeyword; // PPD main keyword
    const char* choice;
    int finishing;               // "finishings" enum
    const char* templateKeyword; // its "finishing-template" keyword
};

// The "finishings" value of a job without finishing.
inline constexpr int kNoFinishing = 3;

extern const MediaSizeRow kMediaSizeRows[];
extern const WordRow kMediaTypeRows[];
extern const WordRow kMediaColorRows[];
extern const WordRow kMediaSourceRows[];
extern const ChoiceRow kOutputBinRows[];
extern const FinishingRow kFinishingRows[];
extern const std::size_t kMediaSizeRowCount, kMediaTypeRowCount, kMediaColorRowCount,
    kMediaSourceRowCount, kOutputBinRowCount, kFinishingRowCount;

// Width and length in hundredths of a millimetre of a stock size; a custom
// size (75) takes the stock's own width and length (tenths of a millimetre).
std::optional<std::pair<int, int>> MediaSize(std::int32_t size, std::int32_t width,
                                             std::int32_t length);
// The media-type of a stock type; named types (6, 7) carry the user's name.
std::optional<IppWord> MediaType(std::int32_t type, const QString& customType);
// The media-color of a stock colour; the custom colour (10) carries its name.
std::optional<IppWord> MediaColor(std::int32_t color, const QString& customColor);
std::optional<IppWord> MediaSource(std::int32_t source);
// The output-bin of an "OutputBin" choice; a bin of the printer's own is
// sent by its PPD name.
std::optional<IppWord> OutputBin(const QString& choice);
// The finishings enum of a PPD choice ("StapleLocation", "QVPunch", "QVFold",
// "Jog"); nullopt for "None" and unknown choices.
std::optional<int> Finishing(const QString& mainKeyword, const QString& choice);
// The template keyword of a finishings enum ("staple-top-left" for 20).
QString FinishingTemplate(int finishing);
// "sides" of a plex value (1 simplex, 2 long edge, 3 short edge).
std::optional<QString> Sides(std::int64_t plex);
// "cover-type" of a cover's printed sides (1, 2, 4).
std::optional<QString> CoverType(std::int32_t sidesImaged);
// The print-quality enum (3 draft, 4 normal, 5 high) of a "JCLPrintQuality" choice.
std::optional<int> PrintQuality(const QString& choice);

} // namespace orvan::submission
