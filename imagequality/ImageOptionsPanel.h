// The Image Options panel: the shell's second tab. ImageOptionsView shows an
// ImageOptionsModel and hands the user's choices to it; ImageOptionsPanel is
// the panel the shell drives, with or without the view (headless).
#pragma once

#include "imagequality/ImageOptionsModel.h"
#include "shell/PanelBase.h"

#include <QPointer>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;

namespace orvan {

class Bundle;

class ImageOptionsView : public QWidget
{
    Q_OBJECT

public:
    // Builds the controls (object name "ImageOptionsPanel") into parent's
    // layout and shows the model.
    ImageOptionsView(ImageOptionsModel& model, const Bundle* bundle, QWidget* parent);

    // Refills the resolution pop-up from the model's menu, then shows the
    // model's values.
    void reloadMenus();
    // Shows the model's values: the resolution item (none when no item has
    // the value), the three check boxes and the pictures.
    void showModel();
    // The invert-image controls this view has: both, as it always builds them.
    InvertImageControls controls() const;

private:
    void showPictures();
    void showPicture(QLabel* label, const QString& name);

    ImageOptionsModel& m_model;
    const Bundle* m_bundle;
    QComboBox* m_resolution;
    QCheckBox* m_tonerSaver;
    QCheckBox* m_negativeImage;
    QCheckBox* m_mirrorImage;
    QLabel* m_resolutionPicture;
    QLabel* m_tonerSaverPicture;
    QLabel* m_invertImagePicture;
};

class ImageOptionsPanel : public PanelBase
{
public:
    // The bundle is the shell's (the plug-in's own) unless given.
    ImageOptionsPanel();
    explicit ImageOptionsPanel(const Bundle* bundle);
    ~ImageOptionsPanel() override;

    // Title "Image Options", creator 'Qshl'.
    Description describe() const override;
    // Keeps the current PPD and fills the resolution menu; builds the view
    // when there is a parent.
    Status initialize(QWidget* parent, PrintSession* session) override;
    // Reading shows the new values in the view; writing takes the
    // invert-image flags from which controls exist (none when headless).
    Status sync(PrintSession* session, bool direction) override;
    Status summaryText(PropertyValue* titles, PropertyValue* values) override;
    Status terminate(Status status) override;

    ImageOptionsModel& model() { return m_model; }
    ImageOptionsView* view() const { return m_view; }

private:
    const Bundle* m_bundle;
    ImageOptionsModel m_model;
    QPointer<ImageOptionsView> m_view;
};

} // namespace orvan
