#include "ui/InputLimits.h"

namespace orvan {

CharacterSet CharacterSetFromString(const QString& characters)
{
    CharacterSet set;
    for (const char32_t c : characters.toUcs4())
        set.insert(c);
    return set;
}

bool ContainsOnly(const QString& text, const CharacterSet& set)
{
    for (const char32_t c : text.toUcs4()) {
        if (!set.contains(c))
            return false;
    }
    return true;
}

bool InputLimits::accepts(const QString& text) const
{
    if (hasMinimum() && text.size() < firstLimit)
        return false;
    if (hasMaximum() && text.size() > secondLimit)
        return false;
    return !allowed || ContainsOnly(text, *allowed);
}

QString InputLimits::applied(const QString& text, int& cursor) const
{
    cursor = qBound(0, cursor, static_cast<int>(text.size()));
    QString result;
    if (allowed) {
        result.reserve(text.size());
        int position = 0;
        int newCursor = cursor;
        while (position < text.size()) {
            const bool pair = text.at(position).isHighSurrogate() && position + 1 < text.size() &&
                              text.at(position + 1).isLowSurrogate();
            const int width = pair ? 2 : 1;
            const char32_t c =
                pair ? QChar::surrogateToUcs4(text.at(position), text.at(position + 1))
                     : text.at(position).unicode();
            if (allowed->contains(c))
                result.append(QStringView(text).mid(position, width));
            else if (position < cursor)
                newCursor -= width;
            position += width;
        }
        cursor = newCursor;
    } else {
        result = text;
    }

    if (!hasMaximum() || result.size() <= secondLimit)
        return result;
    qsizetype excess = result.size() - secondLimit;
    // Cut from the end of the insertion first, then (for text set without an
    // insertion point, such as a whole replacement) from the end.
    qsizetype start = qMax<qsizetype>(0, cursor - excess);
    if (start > 0 && start < result.size() && result.at(start).isLowSurrogate() &&
        result.at(start - 1).isHighSurrogate())
        --start; // never leave half a surrogate pair behind
    const qsizetype removedBeforeCursor = cursor - start;
    result.remove(start, removedBeforeCursor);
    cursor = static_cast<int>(start);
    excess -= removedBeforeCursor;
    if (excess > 0) {
        qsizetype cut = result.size() - excess;
        if (cut > 0 && result.at(cut).isLowSurrogate() && result.at(cut - 1).isHighSurrogate())
            --cut;
        result.truncate(cut);
        cursor = qMin(cursor, static_cast<int>(result.size()));
    }
    return result;
}

} // namespace orvan
