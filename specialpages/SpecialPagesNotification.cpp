#include "specialpages/SpecialPagesNotification.h"

#include "platform/Alerts.h"
#include "settings/Bundle.h"
#include "settings/TextUtilities.h"
#include "specialpages/PageRanges.h"

#include <array>

namespace orvan {

namespace {

struct NotificationText
{
    Status code;
    const char* titleKey;
    const char* messageKey;
};

constexpr std::array<NotificationText, 5> kNotificationTexts{{
    {kPageNumberLimit, "Page Number Limit Title", "Page Number Limit"},
    {kInvalidPageRanges, "Invalid Pages Title", "Invalid Page Ranges"},
    {kInvalidRangeOrder, "Invalid Ranges Title", "Invalid Range Order"},
    {kInvalidPageNumbers, "Invalid Page Numbers Title", "Invalid Page Numbers Message"},
    {kPageRangeConflict, "PageRangeConflictTitle", "PageRangeConflictMessage"},
}};

QString text(const Bundle& bundle, const char* key)
{
    return bundle.localizedString(QString::fromLatin1(key), kStringNotFound, kDefaultStringTable);
}

} // namespace

void SpecialPagesUserNotification(Status code, const Bundle& bundle)
{
    for (const NotificationText& entry : kNotificationTexts) {
        if (entry.code != code)
            continue;
        QString message = text(bundle, entry.messageKey);
        // The limit message names how many digits a page number may have.
        if (code == kPageNumberLimit && message.contains(QLatin1String("%1")))
            message = message.arg(CountDigits(kLastPageNumber));
        ShowAlert({AlertLevel::Caution, text(bundle, entry.titleKey), message});
        return;
    }
}

void SpecialPagesUserNotification(Status code, const Bundle* bundle)
{
    if (bundle) {
        SpecialPagesUserNotification(code, *bundle);
        return;
    }
    static const Bundle noBundle{QString()};
    SpecialPagesUserNotification(code, noBundle);
}

} // namespace orvan
