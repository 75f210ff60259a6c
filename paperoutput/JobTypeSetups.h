// The modal dialogs the Paper/Output panel opens from its setup button and
// its booklet command. Each works on the values it is given and changes them
// only on OK; none writes a ticket (the panel does). Their rules are plain
// functions (JobTypeSetupRules.h, BookletCreation.h); these are the views.
#pragma once

#include "paperoutput/FinishingRules.h"
#include "paperoutput/PaperOutputRecord.h"

#include <QString>

#include <cstdint>

class QWidget;

namespace orvan {

class Bundle;

// The secure-print passcode: two digit-only password fields (4 to 10
// digits). A too-short passcode is replaced by a generated one, which the
// user is told. True on OK.
bool RunModalSecurePrintSetup(const Bundle* bundle, QString& passcode, QWidget* parent);
// The time of day at which a delayed job prints, on the long date-time scale
// (LongDateClock.h); a time already past today means tomorrow. A held 0 (none
// chosen yet) presets the current time. True on OK.
bool RunModalDelayedPrintSetup(const Bundle* bundle, std::int64_t& time, QWidget* parent);
// Saved-job name (or the job's own name), folder (or the public folder), save
// or save and print, and an optional passcode, on the record's saved-job
// fields. The name and folder boxes keep the user's input history. True on OK.
bool RunModalSavedJobDialog(const Bundle* bundle, PaperOutputRecord& record, QWidget* parent);
// Booklet finishing (fold, fold and staple), layout, outlines, a new sheet
// size from the stock's size menu, gutter (points) and creep (tenths of a
// point, shown in points). Works on the booklet fields of the Paper/Output
// record (PaperOutputModel::bookletCreationParams; the caller applies the
// result with applyBookletCreation). Without foldEnabled only the fold radio
// "None" can be chosen. True on OK; on Cancel params is unchanged.
bool RunModalBookletCreationDialog(const Bundle* bundle, BookletCreationParams& params,
                                   QWidget* parent, bool foldEnabled = true);
// The same controls under the title "Booklet Options Title".
bool RunModalBookletOptionsDialog(const Bundle* bundle, BookletCreationParams& params,
                                  QWidget* parent);

} // namespace orvan
