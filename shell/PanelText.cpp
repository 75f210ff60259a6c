#include "shell/PanelText.h"

#include "settings/Bundle.h"
#include "shell/PDEShell.h"

namespace orvan {

const Bundle* ShellBundle()
{
    const PDEShellContext* shell = CurrentShellContext();
    return shell ? shell->bundle : nullptr;
}

QString PanelText(const Bundle* bundle, const QString& key)
{
    return bundle ? bundle->localizedString(key, key, kDefaultStringTable) : key;
}

QString SummaryTitleFromLabel(const Bundle* bundle, const QString& labelKey)
{
    QString title = PanelText(bundle, labelKey).trimmed();
    while (title.endsWith(QLatin1Char(':')) || title.endsWith(QChar(0xFF1A)))
        title.chop(1);
    return title.trimmed();
}

void AppendSummaryPair(PropertyValue* titles, PropertyValue* values, const QString& title,
                       const QString& value)
{
    if (!titles || !values)
        return;
    if (!titles->isArray())
        *titles = PropertyValue::array();
    if (!values->isArray())
        *values = PropertyValue::array();
    titles->append(PropertyValue(title));
    values->append(PropertyValue(value));
}

} // namespace orvan
