#include "specialpages/SpecialPagesTicket.h"

#include "specialpages/SpecialPageKeys.h"

namespace orvan {

namespace {

// Stores the value, or removes the item when the value is Null. An item that
// is already absent is no failure.
Status storeOrRemove(Ticket& ticket, const QString& key, PropertyValue value)
{
    if (value.isNull()) {
        const Status status = ticket.releaseItem(key);
        return status == kTicketItemNotFound ? kNoError : status;
    }
    return ticket.setItem(kRecordClient, key, std::move(value), false);
}

std::unique_ptr<Cover> readCover(const Ticket& ticket, const QString& key)
{
    const PropertyValue* dictionary = ticket.dictionary(key);
    return dictionary ? std::make_unique<Cover>(dictionary) : nullptr;
}

bool bookletLayout(const Ticket& ticket)
{
    return ticket.boolean(kBookletLayoutKey).value_or(false);
}

// Pages made from each dictionary of a ticket array, in order.
template <typename Page>
std::vector<std::unique_ptr<Page>> readPages(const Ticket& ticket, const QString& key)
{
    std::vector<std::unique_ptr<Page>> pages;
    if (const PropertyValue* array = ticket.array(key)) {
        for (const PropertyValue& dictionary : array->asArray()) {
            if (dictionary.isDictionary())
                pages.push_back(std::make_unique<Page>(&dictionary));
        }
    }
    return pages;
}

} // namespace

Status WriteCoversToTicket(Ticket& ticket, const Cover* frontCover, const Cover* backCover)
{
    const Status status = storeOrRemove(ticket, kFrontCoverKey,
                                        frontCover ? frontCover->asTicket() : PropertyValue());
    if (status != kNoError)
        return status;
    // A booklet folds one sheet around the job: equal covers are stored once
    // and the back is made from the front when read.
    const bool sameCovers = frontCover && backCover && *frontCover == *backCover;
    if (bookletLayout(ticket) && sameCovers)
        return storeOrRemove(ticket, kBackCoverKey, PropertyValue());
    return storeOrRemove(ticket, kBackCoverKey,
                         backCover ? backCover->asTicket() : PropertyValue());
}

void ReadCoversFromTicket(const Ticket& ticket, std::unique_ptr<Cover>& frontCover,
                          std::unique_ptr<Cover>& backCover)
{
    frontCover = readCover(ticket, kFrontCoverKey);
    if (bookletLayout(ticket))
        backCover = frontCover ? frontCover->clone() : nullptr;
    else
        backCover = readCover(ticket, kBackCoverKey);
}

Status SyncCovers(Ticket& ticket, SpecialPagesSync direction, std::unique_ptr<Cover>& frontCover,
                  std::unique_ptr<Cover>& backCover)
{
    switch (direction) {
    case SpecialPagesSync::WriteTicket:
        return WriteCoversToTicket(ticket, frontCover.get(), backCover.get());
    case SpecialPagesSync::ReadTicket:
        ReadCoversFromTicket(ticket, frontCover, backCover);
        return kNoError;
    }
    return kBadParameter;
}

void SpecialPagesState::readFromTicket(const Ticket& ticket)
{
    inserts.clear();
    inserts.add(BorrowPages(readPages<Insert>(ticket, kInsertListKey)));
    exceptions.clear();
    exceptions.add(BorrowPages(readPages<ExceptionPage>(ticket, kExceptionListKey)));
    const PropertyValue* stock = ticket.dictionary(kJobLevelStockKey);
    jobLevelStock = stock ? std::make_unique<Stock>(stock) : nullptr;
    ReadCoversFromTicket(ticket, frontCover, backCover);
}

Status SpecialPagesState::writeToTicket(Ticket& ticket, bool withCovers) const
{
    Status status = storeOrRemove(ticket, kInsertListKey, inserts.asTicket());
    if (status == kNoError)
        status = storeOrRemove(ticket, kExceptionListKey, exceptions.asTicket());
    if (status != kNoError || !withCovers)
        return status;
    return WriteCoversToTicket(ticket, frontCover.get(), backCover.get());
}

} // namespace orvan
