// The contents of a pop-up menu, apart from any widget: items with a text, a
// command, a separator look and one integer reference value each (the ticket
// value the item stands for), plus the menu's own reference (the setting map
// it was built from). Widgets mirror a MenuModel into a QMenu or QComboBox.
#pragma once

#include "settings/SettingMap.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace orvan {

struct MenuItem
{
    QString text;
    std::uint32_t commandId = 0;
    std::int32_t referenceValue = 0;
    bool separator = false;

    friend bool operator==(const MenuItem&, const MenuItem&) = default;
};

// Items are numbered from 1, as in the setting maps; number 0 stands for the
// menu itself (its reference is the map it was built from).
class MenuModel
{
public:
    int count() const { return static_cast<int>(m_items.size()); }
    bool isEmpty() const { return m_items.empty(); }
    // The item with that number; null outside 1...count().
    const MenuItem* item(int number) const;
    MenuItem* item(int number);
    const std::vector<MenuItem>& items() const { return m_items; }

    void append(MenuItem item);
    // Inserts after the item with that number; 0 inserts first, a number past
    // the end appends.
    void insertAfter(int number, MenuItem item);
    void clear();

    // The number of the first item whose reference value equals the value;
    // 0 when none does.
    int findReferenceValue(std::int32_t value) const;

    // The map the menu was built from (null for menus filled from a PPD).
    const _SettingMap* sourceMap() const { return m_sourceMap; }
    void setSourceMap(const _SettingMap* map) { m_sourceMap = map; }

private:
    std::vector<MenuItem> m_items;
    const _SettingMap* m_sourceMap = nullptr;
};

} // namespace orvan
