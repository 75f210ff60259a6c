// The separators dialog: whether sheets go between transparencies (none,
// blank, printed) and the stock they are taken from.
#pragma once

#include "stock/Stock.h"

#include <cstdint>

class QWidget;

namespace orvan {

class Bundle;

// Edits the option (`_SeparatorOptionMap` value) and the stock; both change
// only on OK. The stock controls are enabled while sheets are put in.
bool RunModalSeparatorsDialog(const Bundle* bundle, std::int32_t& option, Stock& stock,
                              QWidget* parent);

} // namespace orvan
