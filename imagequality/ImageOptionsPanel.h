// The Image Options panel: the shell's second tab. ImageOptionsView shows an
// ImageOptionsModel and hands the user's choices to it; ImageOptionsPanel is
// the panel the shell drives, with or without the view (headless).
#pragma once

#include "imagequality/ImageOptionsModel.h"
#include "shell/ModelPanel.h"

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

class ImageOptionsPanel : public ModelPanel<ImageOptionsModel, ImageOptionsView>
{
public:
    using ModelPanel::ModelPanel;

    // Title "Image Options", creator 'Qshl'.
    Description describe() const override;

protected:
    // Keeps the current PPD and fills the resolution menu.
    Status loadModel(PrintSession* session) override;
    // Writing takes the invert-image flags from which controls exist (none
    // when headless).
    Status syncModel(PrintSession* session, bool direction) override;
};

} // namespace orvan
