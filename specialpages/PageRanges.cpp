#include "specialpages/PageRanges.h"

namespace orvan {

namespace {

enum class ParseState
{
    Start, // nothing pending
    Dash,  // a hyphen with no number before it
    First, // a first number
    Range, // a first number and a hyphen
    Limit, // error: number too large
    Bad,   // error: malformed
    Order, // error: first page after the last
};

bool isError(ParseState state)
{
    return state == ParseState::Limit || state == ParseState::Bad || state == ParseState::Order;
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

class PageRangeParser
{
public:
    PageRangeParser(QStringView text, bool asRanges) : m_text(text), m_asRanges(asRanges) {}

    Status run()
    {
        // One position past the end reads as a comma, closing the last item
        // like every other one.
        for (qsizetype position = 0; position <= m_text.size() && !isError(m_state); ++position) {
            const QChar c = position < m_text.size() ? m_text[position] : QChar(u',');
            if (c == u',')
                comma();
            else if (c == u'-')
                hyphen();
            else if (isDigit(c))
                digit(position);
        }
        switch (m_state) {
        case ParseState::Limit:
            return kPageNumberLimit;
        case ParseState::Bad:
            return kInvalidPageRanges;
        case ParseState::Order:
            return kInvalidRangeOrder;
        case ParseState::Start:
        case ParseState::Dash:
        case ParseState::First:
        case ParseState::Range:
            break;
        }
        return m_emitted ? kNoError : kInvalidPageRanges;
    }

    std::vector<PageRange>& ranges() { return m_ranges; }

private:
    void comma()
    {
        switch (m_state) {
        case ParseState::Dash:
            m_state = ParseState::Bad;
            break;
        case ParseState::First:
            complete(m_first, m_first);
            break;
        case ParseState::Range:
            complete(m_first, kLastPageNumber);
            break;
        case ParseState::Start:
        case ParseState::Limit:
        case ParseState::Bad:
        case ParseState::Order:
            break;
        }
    }

    void hyphen()
    {
        switch (m_state) {
        case ParseState::Start:
            m_state = ParseState::Dash;
            break;
        case ParseState::First:
            m_state = ParseState::Range;
            break;
        case ParseState::Dash:
        case ParseState::Range:
            m_state = ParseState::Bad;
            break;
        case ParseState::Limit:
        case ParseState::Bad:
        case ParseState::Order:
            break;
        }
    }

    // Reads the number starting at position and leaves position on its last
    // digit; a number after a lone first number closes that one and is read
    // again from Start.
    void digit(qsizetype& position)
    {
        if (m_state == ParseState::First) {
            complete(m_first, m_first);
            --position;
            return;
        }
        std::int32_t number = 0;
        bool tooLarge = false;
        while (position < m_text.size() && isDigit(m_text[position])) {
            if (!tooLarge) {
                number = number * 10 + (m_text[position].unicode() - u'0');
                tooLarge = number > kLastPageNumber;
            }
            ++position;
        }
        --position;
        if (tooLarge) {
            m_state = ParseState::Limit;
            return;
        }
        switch (m_state) {
        case ParseState::Start:
            m_first = number;
            m_state = ParseState::First;
            break;
        case ParseState::Dash:
        case ParseState::Range:
            complete(m_first, number);
            break;
        case ParseState::First:
        case ParseState::Limit:
        case ParseState::Bad:
        case ParseState::Order:
            break;
        }
    }

    void complete(std::int32_t first, std::int32_t last)
    {
        if (first > last) {
            m_state = ParseState::Order;
            return;
        }
        if (m_asRanges) {
            m_ranges.push_back({first, last - first + 1});
        } else {
            for (std::int32_t page = first; page <= last; ++page)
                m_ranges.push_back({page, 1});
        }
        m_state = ParseState::Start;
        m_first = 1;
        m_emitted = true;
    }

    QStringView m_text;
    bool m_asRanges;
    ParseState m_state = ParseState::Start;
    // An open start ("-7") counts from page 1.
    std::int32_t m_first = 1;
    bool m_emitted = false;
    std::vector<PageRange> m_ranges;
};

} // namespace

Status CreatePageRangesBySeparatingString(QStringView text, bool asRanges,
                                          std::vector<PageRange>* result)
{
    if (!result)
        return kBadParameter;
    PageRangeParser parser(text, asRanges);
    const Status status = parser.run();
    if (status == kNoError)
        *result = std::move(parser.ranges());
    return status;
}

} // namespace orvan
