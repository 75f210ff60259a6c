#include "watermark/type42/Type42Encoding.h"

#include "watermark/type42/GlyphNames.h"

namespace orvan {
namespace {

// A set of at most 256 distinct names with open addressing: both encoding
// steps ask it once per glyph, and fonts hold thousands of glyphs.
class NameSet
{
public:
    // Returns the slot holding `name`, or the empty slot where it would go.
    std::size_t slotOf(std::string_view name) const
    {
        if (!mayHold(name))
            return kAbsent;
        std::size_t slot = hash(name) & (kSlots - 1);
        while (used_[slot] && names_[slot] != name)
            slot = (slot + 1) & (kSlots - 1);
        return slot;
    }
    bool contains(std::string_view name) const { return used_[slotOf(name)]; }
    void insert(std::string_view name)
    {
        sizes_[sizeKey(name)] = true;
        const std::size_t slot = slotOf(name);
        used_[slot] = true;
        names_[slot] = name;
    }
    // Marks `name` as seen when the set holds it.
    void markIfHeld(std::string_view name)
    {
        const std::size_t slot = slotOf(name);
        if (used_[slot])
            marked_[slot] = true;
    }
    bool marked(std::string_view name) const { return marked_[slotOf(name)]; }

private:
    // Twice the largest number of distinct names, so probes stay short.
    static constexpr std::size_t kSlots = 512;
    // A slot never used, answered for names the size filter rules out.
    static constexpr std::size_t kAbsent = kSlots;

    // Most glyph names (uni0410, a.sc, ...) share no length and first
    // character with any name in the set: those are ruled out at once.
    static std::size_t sizeKey(std::string_view name)
    {
        const std::size_t first = name.empty() ? 0 : static_cast<unsigned char>(name.front());
        return (name.size() * 37 + first) & 1023;
    }
    bool mayHold(std::string_view name) const { return sizes_[sizeKey(name)]; }

    // Length and end characters separate glyph names well enough, and cost
    // the same for long names as for short ones.
    static std::size_t hash(std::string_view name)
    {
        if (name.empty())
            return 0;
        const std::size_t first = static_cast<unsigned char>(name.front());
        const std::size_t last = static_cast<unsigned char>(name.back());
        const std::size_t middle = static_cast<unsigned char>(name[name.size() / 2]);
        return name.size() * 131 + first * 31 + middle * 7 + last;
    }

    std::array<std::string_view, kSlots> names_{};
    std::array<bool, kSlots + 1> used_{};
    std::array<bool, kSlots + 1> marked_{};
    std::array<bool, 1024> sizes_{};
};

} // namespace

Type42Encoding buildEncoding(std::span<const std::string_view> glyphNames)
{
    Type42Encoding encoding = _StandardEncodings;
    if (glyphNames.empty())
        return encoding;

    NameSet standard;
    for (std::string_view name : encoding)
        standard.insert(name);
    for (std::string_view name : glyphNames)
        standard.markIfHeld(name);
    for (std::string_view& name : encoding) {
        if (!standard.marked(name))
            name = glyphNames[0];
    }

    NameSet encoded;
    for (std::string_view name : encoding)
        encoded.insert(name);
    std::size_t nextFree = 32;
    for (std::string_view name : glyphNames) {
        if (encoded.contains(name))
            continue;
        while (nextFree < encoding.size() && encoding[nextFree] != ".notdef")
            ++nextFree;
        if (nextFree == encoding.size())
            continue;
        encoding[nextFree] = name;
        encoded.insert(name);
    }
    return encoding;
}

} // namespace orvan
