// The Special Pages panel: SpecialPagesView shows a SpecialPagesModel (the
// list of covers, inserts and exception pages and the command buttons) and
// runs the dialogs the model asks for; SpecialPagesPanel is the panel the
// host drives, with or without the view.
#pragma once

#include "shell/PanelBase.h"
#include "specialpages/SpecialPagesModel.h"

#include <QPointer>
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

class SpecialPagesPanel : public PanelBase
{
public:
    // The bundle is the shell's (the plug-in's own) unless given.
    SpecialPagesPanel();
    explicit SpecialPagesPanel(const Bundle* bundle);
    ~SpecialPagesPanel() override;

    // Title "Special Pages".
    Description describe() const override;
    // Builds the view when there is a parent.
    Status initialize(QWidget* parent, PrintSession* session) override;
    Status sync(PrintSession* session, bool direction) override;
    Status summaryText(PropertyValue* titles, PropertyValue* values) override;
    Status terminate(Status status) override;

    SpecialPagesModel& model() { return m_model; }
    SpecialPagesView* view() const { return m_view; }

private:
    const Bundle* m_bundle;
    SpecialPagesModel m_model;
    QPointer<SpecialPagesView> m_view;
};

} // namespace orvan
