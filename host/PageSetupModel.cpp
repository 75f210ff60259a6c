#include "host/PageSetupModel.h"

#include <algorithm>
#include <cmath>

namespace orvan {

namespace {

bool sameSize(QSizeF a, QSizeF b)
{
    return std::abs(a.width() - b.width()) < 1 && std::abs(a.height() - b.height()) < 1;
}

} // namespace

void PageSetupModel::setPapers(std::vector<PaperSize> papers)
{
    const PaperSize chosen = m_setup.paper;
    m_papers = std::move(papers);
    auto kept = std::find_if(m_papers.begin(), m_papers.end(),
                             [&](const PaperSize& paper) { return paper.name == chosen.name; });
    if (kept == m_papers.end())
        kept = std::find_if(m_papers.begin(), m_papers.end(), [&](const PaperSize& paper) {
            return sameSize(paper.points, chosen.points);
        });
    if (kept != m_papers.end())
        m_setup.paper = *kept;
    else
        m_setup.paper = m_papers.empty() ? PaperSize{} : m_papers.front();
}

int PageSetupModel::paperIndex() const
{
    const auto found = std::find(m_papers.begin(), m_papers.end(), m_setup.paper);
    return found == m_papers.end() ? -1 : static_cast<int>(found - m_papers.begin());
}

void PageSetupModel::choosePaper(int index)
{
    if (index >= 0 && index < static_cast<int>(m_papers.size()))
        m_setup.paper = m_papers[static_cast<std::size_t>(index)];
}

void PageSetupModel::setPagesPerSheet(int count)
{
    if (std::find(kPagesPerSheetChoices.begin(), kPagesPerSheetChoices.end(), count) !=
        kPagesPerSheetChoices.end())
        m_setup.pagesPerSheet = count;
}

void PageSetupModel::readFrom(const PrintSession& session)
{
    m_setup = ReadPageSetup(session, m_papers);
}

void PageSetupModel::writeTo(PrintSession& session, const QString& jobName) const
{
    WritePageSetup(session, m_setup, jobName);
}

} // namespace orvan
