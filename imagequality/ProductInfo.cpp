#include "imagequality/ProductInfo.h"

#include "settings/Bundle.h"
#include "shell/PanelText.h"

namespace orvan {

namespace {

QString InfoString(const Bundle& bundle, const char* key)
{
    const PropertyValue* value = bundle.infoDictionary().find(QLatin1String(key));
    return value && value->isString() ? value->toString() : QString();
}

} // namespace

ProductInfo ProductInfoFromBundle(const Bundle* bundle)
{
    if (!bundle)
        return {};
    return ProductInfo{InfoString(*bundle, "CFBundleName"),
                       InfoString(*bundle, "CFBundleShortVersionString"),
                       InfoString(*bundle, "CFBundleVersion")};
}

QString ProductVersionLine(const Bundle* bundle, const ProductInfo& info)
{
    QString format = PanelText(bundle, QStringLiteral("About Version"));
    if (!format.contains(QLatin1String("%1")))
        format = QStringLiteral("Version %1 (%2)");
    return format.arg(info.version, info.build);
}

QString ProductAboutTitle(const Bundle* bundle, const ProductInfo& info)
{
    QString format = PanelText(bundle, QStringLiteral("About Title"));
    if (!format.contains(QLatin1String("%1")))
        format = QStringLiteral("About %1");
    return format.arg(info.name);
}

} // namespace orvan
