// The one way to build a panel: a model on Qt Core that holds the values,
// the ticket synchronisation, the menus and the summary, and a thin view
// that shows the model and forwards the user's actions to it. A new panel
// writes its model, its view, a class
//
//   class MyPanel : public ModelPanel<MyModel, MyView> {
//       Description describe() const override { return describeAs(kMyTitleKey); }
//   };
//
// and one exported Get...PanelInterface function (GetPanelInterface<MyPanel>).
//
// What the panel expects of them:
//   Model: Status sync(PrintSession* session, bool direction);
//          void appendSummary(const Bundle* bundle, PropertyValue* titles,
//                             PropertyValue* values) const;
//   View:  View(Model& model, const Bundle* bundle, QWidget* parent), adding
//          itself to the parent pane (PanelPaneLayout); void showModel().
// Without a parent (the headless dialog) there is no view and the model
// alone keeps the values.
#pragma once

#include "shell/PDEInterface.h"
#include "shell/PanelBase.h"
#include "shell/PanelText.h"

#include <QPointer>

namespace orvan {

template <class Model, class View> class ModelPanel : public PanelBase
{
public:
    // The bundle is the shell's (the plug-in's own) unless given.
    ModelPanel() : ModelPanel(ShellBundle()) {}
    explicit ModelPanel(const Bundle* bundle) : m_bundle(bundle) {}
    ~ModelPanel() override { delete m_view; }
    ModelPanel(const ModelPanel&) = delete;
    ModelPanel& operator=(const ModelPanel&) = delete;

    // Loads the model, then builds the view when there is a parent.
    Status initialize(QWidget* parent, PrintSession* session) override
    {
        const Status status = loadModel(session);
        if (status != kNoError)
            return status;
        if (parent)
            m_view = new View(m_model, m_bundle, parent);
        return kNoError;
    }

    // After reading the tickets the view shows the model's new values.
    Status sync(PrintSession* session, bool direction) override
    {
        const Status status = syncModel(session, direction);
        if (direction && m_view)
            m_view->showModel();
        return status;
    }

    Status summaryText(PropertyValue* titles, PropertyValue* values) override
    {
        if (!titles || !values)
            return kBadParameter;
        m_model.appendSummary(m_bundle, titles, values);
        return kNoError;
    }

    Status terminate(Status) override
    {
        delete m_view;
        return kNoError;
    }

    Model& model() { return m_model; }
    const Model& model() const { return m_model; }
    View* view() const { return m_view; }
    const Bundle* bundle() const { return m_bundle; }

protected:
    // Called by initialize before the view exists (menus, the current PPD).
    virtual Status loadModel(PrintSession*) { return kNoError; }
    // The model's sync. A panel whose model's sync needs more (something only
    // the view knows) overrides this; without that override it fails.
    virtual Status syncModel(PrintSession* session, bool direction)
    {
        if constexpr (requires { m_model.sync(session, direction); })
            return m_model.sync(session, direction);
        else
            return kBadParameter;
    }

    // The description of a pane of this plug-in with the localised title.
    Description describeAs(const QString& titleKey, std::uint32_t creator = kPaneKindCreator) const
    {
        Description description;
        description.kind = kOrvanPaneKind;
        description.title = PanelText(m_bundle, titleKey);
        description.creator = creator;
        return description;
    }

private:
    const Bundle* m_bundle;
    Model m_model;
    QPointer<View> m_view;
};

} // namespace orvan
