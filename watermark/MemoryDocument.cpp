#include "watermark/MemoryDocument.h"

#include <cstring>
#include <limits>
#include <new>

namespace orvan {

QByteArray MemoryDocument::written() const
{
    const std::size_t length = std::min<std::size_t>(cursor, buffer.size());
    return QByteArray(reinterpret_cast<const char*>(buffer.data()), qsizetype(length));
}

void CreateMemoryConsumer(std::size_t initialSize, MemoryDocument& document)
{
    document.buffer.assign(initialSize, 0);
    document.cursor = 0;
}

std::size_t MemoryConsumerPutBytes(MemoryDocument& document, const void* bytes, std::size_t count)
{
    constexpr std::size_t kMaxSize = std::numeric_limits<std::uint32_t>::max();
    const auto freeRoom = [&document](std::size_t size) -> std::size_t {
        return size > std::size_t{document.cursor} + 1 ? size - document.cursor - 1 : 0;
    };
    std::size_t size = document.buffer.size();
    if (freeRoom(size) < count) {
        size = std::max<std::size_t>(size, 1);
        while (freeRoom(size) < count) {
            if (size > kMaxSize / 2)
                return 0;
            size *= 2;
        }
        try {
            document.buffer.resize(size);
        } catch (const std::bad_alloc&) {
            return 0;
        }
    }
    if (count > 0)
        std::memcpy(document.buffer.data() + document.cursor, bytes, count);
    document.cursor += static_cast<std::uint32_t>(count);
    return count;
}

std::size_t MemoryProviderGetBytes(MemoryDocument& document, void* destination, std::size_t count)
{
    if (document.buffer.empty())
        return count;
    const std::size_t size = document.buffer.size();
    const std::size_t available =
        size > std::size_t{document.cursor} + 1 ? size - document.cursor - 1 : 0;
    count = std::min(count, available);
    if (count > 0)
        std::memcpy(destination, document.buffer.data() + document.cursor, count);
    document.cursor += static_cast<std::uint32_t>(count);
    return count;
}

void MemoryProviderRewind(MemoryDocument& document)
{
    document.cursor = 0;
}

void MemoryProviderSkipBytes(MemoryDocument& document, std::size_t count)
{
    document.cursor = static_cast<std::uint32_t>(std::min<std::size_t>(
        std::size_t{document.cursor} + count, std::numeric_limits<std::uint32_t>::max()));
}

void MemoryDocumentRelease(MemoryDocument& document)
{
    document.buffer = {};
    document.cursor = 0;
}

} // namespace orvan
