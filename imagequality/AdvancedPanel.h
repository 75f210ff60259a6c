// The Advanced panel: the shell's fourth tab. AdvancedView shows an
// AdvancedModel (four pop-ups and the About button) and hands control hits to
// it; AdvancedPanel is the panel the shell drives, with or without the view.
#pragma once

#include "imagequality/AdvancedModel.h"
#include "shell/ModelPanel.h"

#include <QWidget>

#include <map>

class QComboBox;
class QPushButton;

namespace orvan {

class Bundle;

class AdvancedView : public QWidget
{
    Q_OBJECT

public:
    // Builds the controls (object name "Advanced") into parent's layout.
    AdvancedView(AdvancedModel& model, const Bundle* bundle, QWidget* parent);

    // Refills the pop-ups from the model's menus and shows its selections.
    void reloadMenus();
    // Shows the item the model selects in each pop-up.
    void showModel();

    QComboBox* popup(std::int32_t controlID) const;

private:
    void controlHit(std::int32_t controlID, int item);

    AdvancedModel& m_model;
    const Bundle* m_bundle;
    std::map<std::int32_t, QComboBox*> m_popups;
    QPushButton* m_about;
};

class AdvancedPanel : public ModelPanel<AdvancedModel, AdvancedView>
{
public:
    using ModelPanel::ModelPanel;

    // Title "Advanced".
    Description describe() const override;

protected:
    // Keeps the current PPD and fills the menus.
    Status loadModel(PrintSession* session) override;
};

} // namespace orvan
