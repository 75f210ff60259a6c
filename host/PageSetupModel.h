// The page setup controls of the Print dialog without their widgets: the
// papers of the current destination, the choices made, and their way into
// and out of the session's tickets.
#pragma once

#include "host/PageSetup.h"

#include <vector>

namespace orvan {

class PrintSession;

class PageSetupModel
{
public:
    // The papers of a new destination. The paper chosen so far stays when the
    // destination offers one of that name or size; else its default (first) is taken.
    void setPapers(std::vector<PaperSize> papers);
    const std::vector<PaperSize>& papers() const { return m_papers; }
    // Index of the chosen paper in papers(); -1 when there are none.
    int paperIndex() const;

    const PageSetup& setup() const { return m_setup; }
    void choosePaper(int index);
    void setOrientation(Orientation orientation) { m_setup.orientation = orientation; }
    // Only the offered counts are taken (kPagesPerSheetChoices).
    void setPagesPerSheet(int count);
    void setOrder(PageOrder order) { m_setup.order = order; }
    void setCollate(bool collate) { m_setup.collate = collate; }
    void setReverse(bool reverse) { m_setup.reverse = reverse; }
    // The page order means something only with more than one page per sheet.
    bool orderEnabled() const { return m_setup.pagesPerSheet > 1; }

    // Read direction takes the tickets' page setup (among the current papers);
    // write direction stores it, with the job name when given.
    void readFrom(const PrintSession& session);
    void writeTo(PrintSession& session, const QString& jobName) const;

private:
    std::vector<PaperSize> m_papers;
    PageSetup m_setup;
};

} // namespace orvan
