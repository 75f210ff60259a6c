// A growable byte buffer with a cursor: the preview document is written into
// it (consumer side) and read back from it (provider side). Each preview (the
// panel's, the editor's) owns one and reuses it for every redraw.
#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace orvan {

struct MemoryDocument
{
    std::uint32_t cursor = 0;
    std::vector<std::uint8_t> buffer;

    // The bytes written so far (up to the cursor), as a copy.
    QByteArray written() const;
};

// Makes the buffer `initialSize` bytes long with the cursor at 0.
void CreateMemoryConsumer(std::size_t initialSize, MemoryDocument& document);
// Appends `count` bytes at the cursor and returns `count`. One byte of the
// buffer always stays free: when size - cursor - 1 < count the size doubles
// (a buffer of size 0 counts as 1) until it is enough. Returns 0 and writes
// nothing when the buffer cannot grow.
std::size_t MemoryConsumerPutBytes(MemoryDocument& document, const void* bytes, std::size_t count);
// Copies at most `count` bytes from the cursor on, cut to size - cursor - 1,
// and advances the cursor; returns the number copied. A document without a
// buffer answers `count` and copies nothing.
std::size_t MemoryProviderGetBytes(MemoryDocument& document, void* destination, std::size_t count);
void MemoryProviderRewind(MemoryDocument& document);
void MemoryProviderSkipBytes(MemoryDocument& document, std::size_t count);
// Frees the buffer.
void MemoryDocumentRelease(MemoryDocument& document);

} // namespace orvan
