#include "settings/MenuModel.h"

#include <algorithm>

namespace orvan {

const MenuItem* MenuModel::item(int number) const
{
    if (number < 1 || number > count())
        return nullptr;
    return &m_items[static_cast<std::size_t>(number - 1)];
}

MenuItem* MenuModel::item(int number)
{
    if (number < 1 || number > count())
        return nullptr;
    return &m_items[static_cast<std::size_t>(number - 1)];
}

void MenuModel::append(MenuItem item)
{
    m_items.push_back(std::move(item));
}

void MenuModel::insertAfter(int number, MenuItem item)
{
    const int at = std::clamp(number, 0, count());
    m_items.insert(m_items.begin() + at, std::move(item));
}

void MenuModel::clear()
{
    m_items.clear();
}

int MenuModel::findReferenceValue(std::int32_t value) const
{
    for (int number = 1; number <= count(); ++number) {
        if (m_items[static_cast<std::size_t>(number - 1)].referenceValue == value)
            return number;
    }
    return 0;
}

} // namespace orvan
