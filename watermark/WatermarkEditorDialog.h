// The watermark editor and its font dialog: thin views of
// WatermarkEditorModel; every control forwards to the model and shows it.
#pragma once

#include "watermark/WatermarkData.h"

#include <QString>

class QWidget;

namespace orvan {

class Bundle;

inline constexpr int kWatermarkEditorOK = 1;
inline constexpr int kWatermarkEditorCancel = 2;

// Runs the application-modal editor on `record` (changed in place) titled
// `title`; the result is kWatermarkEditorOK or kWatermarkEditorCancel. The
// record is not validated on OK.
void RunModalWatermarkEditorDialog(const Bundle* bundle, _WatermarkData& record, QWidget* parent,
                                   const QString& title, int* result);

// The installed fonts sorted by name and a size; sets `postScriptName` and
// `size` and answers true on OK.
bool RunModalFontPanelDialog(const Bundle* bundle, QString& postScriptName, int& size,
                             QWidget* parent);

} // namespace orvan
