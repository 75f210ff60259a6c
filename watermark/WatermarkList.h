// The process-wide list of watermark names that the watermark menu shows.
// The panel, the drawing and the editor share it; the menu's items carry
// indexes into it. It lives in the core library, so the host and the
// plug-in see one list.
#pragma once

#include <QString>
#include <QStringList>

namespace orvan {

class Bundle;

// The list; empty until LoadListOfWatermarks runs.
QStringList& listOfWatermarks();

// Loads the list as the panel does when it is set up: the file's list, else
// the first-use watermarks are written and the list loaded again, else an
// empty list. A first entry whose record has neither text nor file name is
// dropped from the list in memory (only the first entry is checked).
void LoadListOfWatermarks(const QString& file, const Bundle& bundle);

// Index of the first name equal to `name` ignoring case; -1 when none.
qsizetype FindWatermark(const QString& name);

} // namespace orvan
