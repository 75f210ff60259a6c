#include "stock/AdvancedStockOptions.h"

namespace orvan {

namespace {

constexpr _SettingMap Row(const char* key, std::int32_t value)
{
    return {key, value, 0, nullptr, 0};
}
constexpr _SettingMap kDefaultRow = Row("PrinterDefault", kUnset);
constexpr _SettingMap kEndOfMap = Row(nullptr, 0);

constexpr std::int32_t kTabStockType = 24;
constexpr std::int32_t kHeavyTabStockType = 33;

} // namespace

constexpr _SettingMap _StockPunchedMap[] = {
    kDefaultRow,
    Row("StockNotPunched", 1),
    Row("StockPrepunched", 2),
    kEndOfMap,
};

constexpr _SettingMap _StockSidesCoatedMap[] = {
    kDefaultRow,
    Row("StockUncoated", 0),
    Row("StockCoatedFront", 1),
    Row("StockCoatedBack", 2),
    Row("StockCoatedBoth", 3),
    kEndOfMap,
};

constexpr _SettingMap _StockCoatingTypeMap[] = {
    Row("StockCoatingGloss", 1),
    Row("StockCoatingMatte", 2),
    Row("StockCoatingSatin", 3),
    kEndOfMap,
};

constexpr _SettingMap _StockFinishMap[] = {
    kDefaultRow,
    Row("StockFinishSmooth", 1),
    Row("StockFinishVellum", 2),
    Row("StockFinishLinen", 3),
    Row("StockFinishLaid", 4),
    kEndOfMap,
};

constexpr _SettingMap _StockGrainMap[] = {
    kDefaultRow,
    Row("StockGrainLong", 1),
    Row("StockGrainShort", 2),
    kEndOfMap,
};

bool IsTabMediaType(std::int32_t type)
{
    return type == kPrecutTabMediaType || type == kNamedTabMediaType || type == kTabStockType ||
           type == kHeavyTabStockType;
}

AdvancedStockValues AdvancedStockValuesOf(const Stock& stock)
{
    AdvancedStockValues values;
    values.weight = stock.weight();
    values.punched = stock.punched();
    values.sidesCoated = stock.sidesCoated();
    values.coatingType = stock.coatingType();
    values.finish = stock.finish();
    values.grain = stock.grain();
    if (stock.color() == kCustomMediaColor)
        values.colorName = stock.customColor();
    if (stock.type() == kNamedTabMediaType || stock.type() == kNamedMediaType)
        values.typeName = stock.customType();
    if (IsTabMediaType(stock.type()) && stock.modulus() > 0)
        values.tabCount = stock.modulus();
    values.description = stock.description();
    values.comment = stock.comment();
    return values;
}

void ApplyAdvancedStockValues(Stock& stock, const AdvancedStockValues& values, JobContext context)
{
    const bool job = context == JobContext::Job;
    stock.setWeight(values.weight);
    stock.setPunched(values.punched);
    stock.setSidesCoated(values.sidesCoated);
    stock.setCoatingType(values.coatingType);
    stock.setFinish(values.finish);
    stock.setGrain(values.grain);
    stock.setDescription(values.description);
    stock.setComment(values.comment);

    if (!values.colorName.isEmpty()) {
        stock.setColor(kCustomMediaColor);
        stock.setCustomColor(values.colorName);
    } else if (stock.color() == kCustomMediaColor) {
        stock.setColor(job ? kWhiteMediaColor : kUnset);
        stock.setCustomColor(QString());
    }

    const bool tabs = values.tabCount > 0;
    if (!values.typeName.isEmpty()) {
        stock.setType(tabs ? kNamedTabMediaType : kNamedMediaType);
        stock.setCustomType(values.typeName);
    } else if (stock.type() == kNamedTabMediaType || stock.type() == kNamedMediaType) {
        stock.setType(job ? kStandardMediaType : kUnset);
        stock.setCustomType(QString());
    }
    stock.setModulus(IsTabMediaType(stock.type()) && tabs ? values.tabCount : kUnset);
}

} // namespace orvan
