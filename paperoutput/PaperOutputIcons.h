// The pictures of the Paper/Output panel, chosen by value. The names are the
// bundle's image names; the files are PNGs of the same stem under
// "images/paperoutput/" (see PaperOutputImagePath).
#pragma once

#include "paperoutput/PaperOutputRecord.h"

#include <QString>

namespace orvan {

// The job type's picture; empty for a value without one.
QString JobTypeIconName(std::int32_t jobType);
// "2SidedPrinting_2Sided.gif" while booklet layout is on or for 2,
// "..._1Sided.gif" for 1, "..._2SidedFlip.gif" for 3.
QString TwoSidedIconName(const PaperOutputRecord& record);
// The finishing picture: the fold (43 and 53 with a layout variant), else
// the staples with any 2/3/4-hole punch, else the punch alone, else the
// booklet layout, else "OfficeFinishing_None.gif".
QString FinishingIconName(const PaperOutputRecord& record);
QString OutputColorIconName(std::int32_t outputColor);
QString ImageQualityIconName(std::int32_t quality);

// The bundle-relative file of an image name.
QString PaperOutputImagePath(const QString& imageName);

} // namespace orvan
