// Any bytes given to the vCard reader give cards or nothing, never a crash.
// A contact read from them, written out and read again, must then be stable:
// writing and reading it once more gives the same contact, so the writer
// never produces text the reader takes differently.
#include "fax/AddressBook.h"
#include "fax/VCard.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    int skipped = 0;
    for (const orvan::VCard& card : orvan::ParseVCards(input, &skipped)) {
        const auto first = orvan::AddressBookRecordFromVCard(card);
        if (!first)
            continue;
        const auto written = orvan::ParseVCards(orvan::AddressBookRecordToVCard(*first));
        if (written.size() != 1)
            std::abort();
        const auto second = orvan::AddressBookRecordFromVCard(written.front());
        if (!second)
            continue;
        const auto again = orvan::ParseVCards(orvan::AddressBookRecordToVCard(*second));
        if (again.size() != 1 || orvan::AddressBookRecordFromVCard(again.front()) != second)
            std::abort();
    }
    return 0;
}
