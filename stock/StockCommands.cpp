#include "stock/StockCommands.h"

#include "stock/StockMenus.h"

namespace orvan {

namespace {

void clearCustomName(Stock& stock)
{
    stock.setCustomName(QString());
    stock.setCustomNameOnly(false);
}

void chooseSize(StockMenuHandlerData& data, std::int32_t value)
{
    Stock& stock = *data.stock;
    if (value == kCustomPageSize) {
        std::int32_t width = stock.width();
        std::int32_t length = stock.length();
        if (data.dialogs && data.dialogs->runCustomSizeDialog(width, length)) {
            stock.setSize(kCustomPageSize);
            stock.setWidth(width);
            stock.setLength(length);
        }
    } else {
        stock.setSize(value);
    }
}

} // namespace

Status StockMenuCommandEventHandler(StockMenuHandlerData& data, std::uint32_t command,
                                    std::int32_t value)
{
    if (!data.stock)
        return kBadParameter;
    Stock& stock = *data.stock;
    switch (command) {
    case kStockSizeCommand:
        stock.setSource(kUnset);
        chooseSize(data, value);
        clearCustomName(stock);
        return kNoError;
    case kStockColorCommand:
        stock.setSource(kUnset);
        stock.setColor(value);
        clearCustomName(stock);
        return kNoError;
    case kStockTypeCommand:
        stock.setSource(kUnset);
        stock.setType(value);
        clearCustomName(stock);
        return kNoError;
    case kStockDefaultCommand:
        DefaultStock(stock, data.context);
        return kNoError;
    case kStockAdvancedCommand:
        if (data.dialogs && data.dialogs->runAdvancedStockSelection(stock, data.context))
            clearCustomName(stock);
        return kNoError;
    case kStockSourceCommand:
        stock.setSource(value);
        return kNoError;
    default:
        return kEventNotHandled;
    }
}

} // namespace orvan
