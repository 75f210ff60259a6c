// The Special Pages panel: SpecialPagesView shows a SpecialPagesModel (the
// list of covers, inserts and exception pages and the command buttons) and
// runs the dialogs the model asks for; SpecialPagesPanel joins them for the
// host, which shows the panel as a pane of its own (the shell does not load
// it).
#pragma once

#include "shell/ModelPanel.h"
#include "specialpages/SpecialPagesModel.h"

#include <QWidget>

#include <map>

class QAbstractButton;
class QTreeWidget;

namespace orvan {

class Bundle;

class SpecialPagesView : public QWidget
{
    Q_OBJECT

public:
    // Builds the list ("SpecialPagesList") and the nine buttons (object names
    // of kSpecialPagesCommands) into parent's layout.
    SpecialPagesView(SpecialPagesModel& model, const Bundle* bundle, QWidget* parent);

    // Refills the list from the model's rows, shows its selection and the
    // buttons' enabling.
    void showModel();

    QTreeWidget* list() const { return m_list; }
    QAbstractButton* button(SpecialPagesCommand command) const;

private:
    void runCommand(SpecialPagesCommand command);
    bool runDialog(const SpecialPagesAction& action);
    void selectionChanged();

    SpecialPagesModel& m_model;
    const Bundle* m_bundle;
    QTreeWidget* m_list;
    std::map<SpecialPagesCommand, QAbstractButton*> m_buttons;
    bool m_showing = false;
};

class SpecialPagesPanel : public ModelPanel<SpecialPagesModel, SpecialPagesView>
{
public:
    using ModelPanel::ModelPanel;

    // Title "Special Pages".
    Description describe() const override { return describeAs(kSpecialPagesTitleKey); }

protected:
    // The model takes the panel's bundle for its texts.
    Status loadModel(PrintSession* session) override;
};

} // namespace orvan
