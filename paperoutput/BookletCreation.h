// The booklet creation dialog's rules without widgets: which radio button
// shows a fold or layout value and back, when the layout's details can be
// edited, the ranges and units of gutter and creep, and the preview picture.
#pragma once

#include "paperoutput/FinishingRules.h"

#include <QString>

#include <cstdint>

namespace orvan {

// The fold radios, in order: "None" (1), "Booklet Fold" (43), "Booklet Fold
// and Staple" (53). A fold value other than 43 or 53 shows "None".
int FoldRadioIndex(std::int32_t fold);
std::int32_t FoldForRadio(int index);
// "None" can always be chosen, the two folds only on a device that folds
// booklets (PaperOutputModel::bookletFoldEnabled).
bool FoldRadioEnabled(int index, bool deviceFolds);
// The layout radios, in order: "None" (layout 2), "Booklet Layout" (1). Any
// value other than 1 shows "None".
int LayoutRadioIndex(std::int32_t layout);
std::int32_t LayoutForRadio(int index);

// Outlines, new size, gutter and creep belong to the layout: editable only
// while it is on; their values are kept while it is off.
bool BookletDetailsEnabled(std::int32_t layout);
// The values the dialog returns from those its controls read: while the
// layout read is off, the details are the held ones, unchanged (a size the
// menu does not list, say, is not turned into "Off").
BookletCreationParams BookletValuesRead(const BookletCreationParams& held,
                                        const BookletCreationParams& read);

// Gutter in whole points (216 pt = 3 in); creep in tenths of a point, shown
// in points with one decimal.
inline constexpr std::int32_t kGutterMinimum = 0;
inline constexpr std::int32_t kGutterMaximum = 216;
inline constexpr std::int32_t kCreepMinimum = 0;
inline constexpr std::int32_t kCreepMaximum = 100;
inline constexpr double kCreepStepsPerPoint = 10.0;

// The preview picture: "BookletCreation_" + the parts joined with "-" +
// ".gif", the parts being "Booklet" while the layout is on, "Fold" (43) or
// "Fold-Staple" (53), and "Outlines" when outlines are drawn with the layout
// on; "None" when neither layout nor fold is chosen.
QString BookletPreviewImageName(const BookletCreationParams& params);

} // namespace orvan
