#include "paperoutput/BookletCreation.h"

#include <QStringList>

namespace orvan {

namespace {

constexpr std::int32_t kFoldRadioValues[] = {kFinishingNone, kBookletFold, kBookletFoldStaple};
constexpr std::int32_t kLayoutRadioValues[] = {kBookletLayoutOff, kBookletLayoutOn};

} // namespace

int FoldRadioIndex(std::int32_t fold)
{
    return fold == kBookletFoldStaple ? 2 : fold == kBookletFold ? 1 : 0;
}

std::int32_t FoldForRadio(int index)
{
    return index >= 0 && index < 3 ? kFoldRadioValues[index] : kFinishingNone;
}

bool FoldRadioEnabled(int index, bool deviceFolds)
{
    return deviceFolds || FoldForRadio(index) == kFinishingNone;
}

int LayoutRadioIndex(std::int32_t layout)
{
    return layout == kBookletLayoutOn ? 1 : 0;
}

std::int32_t LayoutForRadio(int index)
{
    return index >= 0 && index < 2 ? kLayoutRadioValues[index] : kBookletLayoutOff;
}

bool BookletDetailsEnabled(std::int32_t layout)
{
    return layout == kBookletLayoutOn;
}

BookletCreationParams BookletValuesRead(const BookletCreationParams& held,
                                        const BookletCreationParams& read)
{
    if (BookletDetailsEnabled(read.layout))
        return read;
    BookletCreationParams values = held;
    values.fold = read.fold;
    values.layout = read.layout;
    return values;
}

QString BookletPreviewImageName(const BookletCreationParams& params)
{
    const bool layout = params.layout == kBookletLayoutOn;
    QStringList parts;
    if (layout)
        parts << QStringLiteral("Booklet");
    if (params.fold == kBookletFold)
        parts << QStringLiteral("Fold");
    else if (params.fold == kBookletFoldStaple)
        parts << QStringLiteral("Fold-Staple");
    if (layout && params.drawOutlines == kDrawOutlinesOn)
        parts << QStringLiteral("Outlines");
    if (parts.isEmpty())
        parts << QStringLiteral("None");
    return QStringLiteral("BookletCreation_%1.gif").arg(parts.join(QLatin1Char('-')));
}

} // namespace orvan
