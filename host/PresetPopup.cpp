#include "host/PresetPopup.h"

#include "host/Presets.h"

namespace orvan {

namespace {

enum class Row
{
    Defaults,
    Preset,
    Save,
};

} // namespace

PresetPopup::PresetPopup(QWidget* parent) : QComboBox(parent)
{
    setObjectName(QStringLiteral("PresetPopup"));
    reload();
    connect(this, &QComboBox::activated, this, &PresetPopup::choose);
}

void PresetPopup::reload(const QString& current)
{
    m_current = current;
    clear();
    addItem(tr("Default Settings"), static_cast<int>(Row::Defaults));
    for (const QString& name : PresetNames())
        addItem(name, static_cast<int>(Row::Preset));
    insertSeparator(count());
    addItem(tr("Save Settings as Preset\u2026"), static_cast<int>(Row::Save));
    showCurrent();
}

void PresetPopup::showCurrent()
{
    const int index = m_current.isEmpty() ? 0 : findText(m_current);
    setCurrentIndex(index >= 0 ? index : 0);
}

void PresetPopup::choose(int index)
{
    switch (static_cast<Row>(itemData(index).toInt())) {
    case Row::Defaults:
        m_current.clear();
        emit defaultsChosen();
        return;
    case Row::Preset:
        emit presetChosen(itemText(index));
        return;
    case Row::Save:
        showCurrent();
        emit saveChosen();
        return;
    }
}

} // namespace orvan
