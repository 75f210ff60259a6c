// The dialog's preset pop-up: "Default Settings", the user's presets, and
// "Save Settings as Preset…". It only lists and reports choices; the dialog
// applies them.
#pragma once

#include <QComboBox>

namespace orvan {

class PresetPopup : public QComboBox
{
    Q_OBJECT
public:
    explicit PresetPopup(QWidget* parent = nullptr);

    // Lists the presets there are now and shows the one named (none: "Default
    // Settings" when empty, otherwise the name is shown as the current choice).
    void reload(const QString& current = {});
    // Shows the choice made last again (after a choice that could not be applied).
    void showCurrent();

signals:
    void defaultsChosen();
    void presetChosen(const QString& name);
    void saveChosen();

private:
    void choose(int index);

    QString m_current; // empty: default settings
};

} // namespace orvan
