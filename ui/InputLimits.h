// Length and character limits of a text field, and the rule that applies
// them to an edit. Plain Qt Core, so the rule is tested without a display;
// ui/InputLimitValidator.h puts it on line edits and combo boxes.
#pragma once

#include <QSet>
#include <QString>

#include <optional>

namespace orvan {

// The characters a field accepts, as code points.
using CharacterSet = QSet<char32_t>;

// The set of the characters of a string ("0123456789" -> the ten digits).
CharacterSet CharacterSetFromString(const QString& characters);

// True when every character of text is in the set.
bool ContainsOnly(const QString& text, const CharacterSet& set);

// A field's limits. The first limit is the shortest entry that counts as
// complete, the second the longest the field takes; a limit below 1 means
// no limit. Lengths count UTF-16 units, as the line edit does.
struct InputLimits
{
    int firstLimit = 0;
    int secondLimit = 0;
    std::optional<CharacterSet> allowed; // nullopt: any character

    bool hasMinimum() const { return firstLimit >= 1; }
    bool hasMaximum() const { return secondLimit >= 1; }

    // True when the text's length lies within both limits (inclusive) and all
    // its characters are allowed. Used for entries that were not typed (such
    // as stored history), which are left out rather than cut.
    bool accepts(const QString& text) const;

    // Applies the limits to the text of a field right after an edit; cursor
    // is the position just after the inserted text and is moved with it.
    // Characters outside the set are dropped, so a typed one is refused; when
    // the text is then longer than the second limit, the excess is taken
    // from the end of the insertion, so a typed character that does not fit
    // is refused and pasted text keeps its allowed characters up to the
    // limit. The first limit is not enforced while typing: a field is
    // allowed to be short while the user is still entering its text.
    QString applied(const QString& text, int& cursor) const;
};

} // namespace orvan
