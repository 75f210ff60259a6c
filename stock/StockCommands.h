// What the stock menu's commands do to a stock. The two dialogs a command
// may open (custom size, advanced stock selection) are reached through
// StockDialogs, so the rules hold without any widget.
#pragma once

#include "settings/Status.h"
#include "stock/Stock.h"

#include <cstdint>

namespace orvan {

class Bundle;

class StockDialogs
{
public:
    virtual ~StockDialogs() = default;
    // The custom size dialog, given the current width and length in tenths
    // of a millimetre (either may be unset). True on OK with both set.
    virtual bool runCustomSizeDialog(std::int32_t& width, std::int32_t& length) = 0;
    // The advanced stock selection dialog, editing the stock in place on OK
    // (and leaving it untouched on Cancel). True on OK.
    virtual bool runAdvancedStockSelection(Stock& stock, JobContext context) = 0;
};

// The handler data of one stock menu button.
struct StockMenuHandlerData
{
    const Bundle* bundle = nullptr;
    Stock* stock = nullptr; // the stock being edited; not owned
    JobContext context = JobContext::Job;
    StockDialogs* dialogs = nullptr; // null: every dialog counts as cancelled
};

// Applies a stock menu command with the chosen item's value:
//  'Ssiz'  source unset; 75 opens the custom size dialog and on OK sets size,
//          width and length, any other value sets the size; the custom name
//          is cleared either way (also when the dialog was cancelled).
//  'Sclr'  source unset, colour set, custom name cleared.
//  'Styp'  source unset, type set (Transparency also makes it Clear),
//          custom name cleared.
//  'Sdef'  DefaultStock for the handler's context.
//  'Sadv'  the advanced dialog; on OK the custom name is cleared.
//  'Ssrc'  source set to the value.
// "Custom name cleared" means customName empty and customNameOnly false.
// Returns kNoError for these commands (the caller then redraws the summary
// and icon), kEventNotHandled for any other, kBadParameter without a stock.
Status StockMenuCommandEventHandler(StockMenuHandlerData& data, std::uint32_t command,
                                    std::int32_t value);

} // namespace orvan
