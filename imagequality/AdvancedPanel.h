// The Advanced panel: the shell's fourth tab. AdvancedView shows an
// AdvancedModel (four pop-ups and the About button) and hands control hits to
// it; AdvancedPanel is the panel the shell drives, with or without the view.
#pragma once

#include "imagequality/AdvancedModel.h"
#include "shell/PanelBase.h"

#include <QPointer>
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

class AdvancedPanel : public PanelBase
{
public:
    // The bundle is the shell's (the plug-in's own) unless given.
    AdvancedPanel();
    explicit AdvancedPanel(const Bundle* bundle);
    ~AdvancedPanel() override;

    // Title "Advanced".
    Description describe() const override;
    // Keeps the current PPD and fills the menus; builds the view when there
    // is a parent.
    Status initialize(QWidget* parent, PrintSession* session) override;
    Status sync(PrintSession* session, bool direction) override;
    Status summaryText(PropertyValue* titles, PropertyValue* values) override;
    Status terminate(Status status) override;

    AdvancedModel& model() { return m_model; }
    AdvancedView* view() const { return m_view; }

private:
    const Bundle* m_bundle;
    AdvancedModel m_model;
    QPointer<AdvancedView> m_view;
};

} // namespace orvan
