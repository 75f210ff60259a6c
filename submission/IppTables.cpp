#include "submission/IppTables.h"

#include "stock/Stock.h"

#include <iterator>

namespace orvan::submission {

// clang-format off
// Sizes as the size menu offers them; "815" has no agreed dimensions and is
// left to its PPD choice.
constexpr MediaSizeRow kMediaSizeRows[] = {
    {1, 21590, 27940},  {2, 21590, 35560},  {3, 27940, 43180},  {4, 21000, 29700},
    {5, 29700, 42000},  {16, 21590, 33020}, {12, 21590, 33020}, {80, 7620, 12700},
    {78, 21590, 34036}, {17, 13970, 21590}, {18, 14800, 21000}, {40, 10500, 14800},
    {21, 18415, 26670}, {6, 17600, 25000},  {7, 22500, 29700},  {8, 22860, 27940},
    {82, 27940, 22860}, {14, 25000, 35300}, {41, 12700, 17780}, {42, 12500, 17600},
    {10, 20320, 25400}, {83, 20320, 26670}, {43, 10160, 15240}, {81, 11400, 15200},
    {44, 9843, 19050},  {77, 9843, 22543},  {45, 10477, 24130}, {46, 11000, 22000},
    {20, 16200, 22900}, {55, 18200, 25700}, {56, 25700, 36400}, {57, 12800, 18200},
    {22, 21500, 31500}, {58, 22900, 32400}, {59, 10160, 15240}, {60, 10000, 14800},
    {61, 14800, 20000}, {11, 30480, 45720}, {71, 30480, 48260}, {66, 33020, 48260},
    {15, 32000, 45000}, {24, 22000, 33000}, {29, 18400, 26000}, {67, 27000, 39000},
    {68, 19500, 27000}, {73, 17600, 25000}, {25, 15240, 22860}, {26, 22860, 30480},
    {74, 11400, 16200}, {63, 27940, 38100}, {69, 12000, 23500}, {76, 13970, 17780},
    {62, 15240, 22860},
};

// Paper types. "SystemDefault" (23) and "Unspecified" (34) leave the choice
// to the printer; the numbered custom types go by their menu names.
constexpr WordRow kMediaTypeRows[] = {
    {1, "stationery"},  {41, "stationery"},           {2, "transparency"},
    {3, "stationery-preprinted"},                     {4, "tab-stock"},
    {8, "envelope"},    {9, "labels"},                {10, "stationery-recycled"},
    {11, "stationery-prepunched"},                    {12, "cardstock"},
    {13, "stationery-bond"},                          {14, "stationery-letterhead"},
    {22, "other"},      {24, "tab-stock"},            {25, "labels"},
    {26, "cardstock"},  {27, "stationery-heavyweight"}, {28, "stationery-heavyweight"},
    {29, "stationery-coated"},                        {30, "stationery-coated"},
    {31, "stationery-heavyweight-coated"},            {32, "stationery-heavyweight-coated"},
    {33, "tab-stock"},  {35, "stationery-heavyweight"}, {36, "stationery-heavyweight"},
    {37, "stationery-heavyweight-coated"},            {38, "stationery-heavyweight-coated"},
    {39, "labels"},     {40, "stationery-fine"},      {42, "stationery-lightweight"},
    {43, "cardstock"},  {44, "stationery-coated"},    {45, "stationery-archival"},
    {46, "cardstock"},
};

// Colours; "PrinterDefaultColor" (23) and "Unspecified" (22) are left out.
constexpr WordRow kMediaColorRows[] = {
    {1, "white"},  {2, "blue"},  {3, "yellow"}, {4, "green"},  {5, "pink"},
    {6, "no-color"}, {7, "buff"}, {8, "goldenrod"}, {9, "red"}, {11, "ivory"},
    {12, "gray"},  {13, "orange"},
};

// Trays, by the ticket values of the "InputSlot" choices.
constexpr WordRow kMediaSourceRows[] = {
    {0, "auto"},   {1, "tray-1"}, {2, "tray-2"}, {3, "tray-3"}, {4, "tray-4"},
    {5, "tray-5"}, {6, "tray-6"}, {100, "by-pass-tray"},
};

constexpr ChoiceRow kOutputBinRows[] = {
    {"Auto", "auto"},     {"Top", "top"},       {"TopTray", "top"},     {"Upper", "top"},
    {"Side", "side"},     {"Stacker", "stacker"}, {"Finisher", "stacker"}, {"Middle", "middle"},
    {"Center", "center"}, {"Lower", "bottom"},  {"Bottom", "bottom"},
};

constexpr FinishingRow kFinishingRows[] = {
    {"StapleLocation", "SinglePortrait", 20, "staple-top-left"},
    {"StapleLocation", "DualLandscape", 28, "staple-dual-left"},
    {"StapleLocation", "MultipleStaples", 32, "staple-triple-left"},
    {"QVPunch", "HolePunch", 5, "punch"},
    {"QVPunch", "2HolePunch", 74, "punch-dual-left"},
    {"QVPunch", "3HolePunch", 78, "punch-triple-left"},
    {"QVPunch", "4HolePunch", 82, "punch-quad-left"},
    {"QVFold", "C", 96, "fold-letter"},
    {"QVFold", "Z", 100, "fold-z"},
    {"QVFold", "ZFoldHalfSheet", 94, "fold-half-z"},
    {"QVFold", "BiFold", 93, "fold-half"},
    {"QVFold", "BiFoldStaple", 13, "booklet-maker"},
    {"Jog", "EndOfSet", 14, "jog-offset"},
};
// clang-format on

const std::size_t kMediaSizeRowCount = std::size(kMediaSizeRows);
const std::size_t kMediaTypeRowCount = std::size(kMediaTypeRows);
const std::size_t kMediaColorRowCount = std::size(kMediaColorRows);
const std::size_t kMediaSourceRowCount = std::size(kMediaSourceRows);
const std::size_t kOutputBinRowCount = std::size(kOutputBinRows);
const std::size_t kFinishingRowCount = std::size(kFinishingRows);

namespace {

template <typename Row, std::size_t N>
std::optional<IppWord> FindWord(const Row (&rows)[N], std::int32_t value)
{
    for (const Row& row : rows)
        if (row.ticketValue == value)
            return IppWord{QString::fromLatin1(row.keyword)};
    return std::nullopt;
}

// Custom1 ... Custom7 share the values 15 to 21 in the type and colour menus.
std::optional<IppWord> NumberedCustom(std::int32_t value)
{
    if (value >= 15 && value <= 21)
        return IppWord{QStringLiteral("Custom%1").arg(value - 14), true};
    return std::nullopt;
}

} // namespace

std::optional<std::pair<int, int>> MediaSize(std::int32_t size, std::int32_t width,
                                             std::int32_t length)
{
    if (size == kCustomPageSize) {
        if (width == kUnset || length == kUnset || width <= 0 || length <= 0)
            return std::nullopt;
        return std::pair(width * 10, length * 10);
    }
    for (const MediaSizeRow& row : kMediaSizeRows)
        if (row.stockSize == size)
            return std::pair(row.x, row.y);
    return std::nullopt;
}

std::optional<IppWord> MediaType(std::int32_t type, const QString& customType)
{
    if ((type == kNamedMediaType || type == kNamedTabMediaType) && !customType.isEmpty())
        return IppWord{customType, true};
    if (type == kNamedTabMediaType)
        return IppWord{QStringLiteral("tab-stock")};
    if (auto custom = NumberedCustom(type))
        return custom;
    return FindWord(kMediaTypeRows, type);
}

std::optional<IppWord> MediaColor(std::int32_t color, const QString& customColor)
{
    if (color == kCustomMediaColor)
        return customColor.isEmpty() ? std::nullopt : std::optional(IppWord{customColor, true});
    if (color == 14)
        return IppWord{QStringLiteral("Other"), true};
    if (auto custom = NumberedCustom(color))
        return custom;
    return FindWord(kMediaColorRows, color);
}

std::optional<IppWord> MediaSource(std::int32_t source)
{
    if (source == kInstalledFeatureSource)
        return IppWord{QStringLiteral("post-print-inserter"), true};
    return FindWord(kMediaSourceRows, source);
}

std::optional<IppWord> OutputBin(const QString& choice)
{
    if (choice.isEmpty() || choice == QLatin1String("PrinterDefault"))
        return std::nullopt;
    for (const ChoiceRow& row : kOutputBinRows)
        if (choice == QLatin1String(row.choice))
            return IppWord{QString::fromLatin1(row.keyword)};
    return IppWord{choice, true};
}

std::optional<int> Finishing(const QString& mainKeyword, const QString& choice)
{
    for (const FinishingRow& row : kFinishingRows)
        if (mainKeyword == QLatin1String(row.mainKeyword) && choice == QLatin1String(row.choice))
            return row.finishing;
    return std::nullopt;
}

QString FinishingTemplate(int finishing)
{
    if (finishing == kNoFinishing)
        return QStringLiteral("none");
    for (const FinishingRow& row : kFinishingRows)
        if (row.finishing == finishing)
            return QString::fromLatin1(row.templateKeyword);
    return {};
}

std::optional<QString> Sides(std::int64_t plex)
{
    switch (plex) {
    case 1:
        return QStringLiteral("one-sided");
    case 2:
        return QStringLiteral("two-sided-long-edge");
    case 3:
        return QStringLiteral("two-sided-short-edge");
    default:
        return std::nullopt;
    }
}

std::optional<QString> CoverType(std::int32_t sidesImaged)
{
    switch (sidesImaged) {
    case 1:
        return QStringLiteral("print-none");
    case 2:
        return QStringLiteral("print-front");
    case 4:
        return QStringLiteral("print-both");
    default:
        return std::nullopt;
    }
}

std::optional<int> PrintQuality(const QString& choice)
{
    if (choice == QLatin1String("TonerSaver") || choice == QLatin1String("HighSpeed"))
        return 3;
    if (choice == QLatin1String("Standard"))
        return 4;
    if (choice == QLatin1String("Enhanced") || choice == QLatin1String("HighQuality") ||
        choice == QLatin1String("HighResolution"))
        return 5;
    return std::nullopt;
}

} // namespace orvan::submission
