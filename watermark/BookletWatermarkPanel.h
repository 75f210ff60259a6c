// The Booklet/Watermark panel: the shell's third tab. BookletWatermarkView
// shows a BookletWatermarkModel (the watermark pop-up, the options menu, the
// preview) and runs the editor, the delete question and the booklet creation
// dialog the model asks for; BookletWatermarkPanel is the panel the shell
// drives, with or without the view.
#pragma once

#include "shell/ModelPanel.h"
#include "watermark/BookletWatermarkModel.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QMenu;
class QPushButton;
class QToolButton;

namespace orvan {

class Bundle;

class BookletWatermarkView : public QWidget
{
    Q_OBJECT

public:
    // Builds the controls (object name "BookletWatermarkPanel") into the
    // parent's layout.
    BookletWatermarkView(BookletWatermarkModel& model, const Bundle* bundle, QWidget* parent);

    // Shows the model: the menus, the selection, the marks and the preview.
    void showModel();

    QComboBox* watermarkPopup() const { return m_watermarkPopup; }
    QMenu* optionsMenu() const { return m_optionsMenu; }
    QLabel* preview() const { return m_preview; }
    QPushButton* bookletButton() const { return m_bookletButton; }

private:
    void chooseWatermarkItem(int item);
    void run(WatermarkPanelAction action);
    bool runEditor(_WatermarkData& record);
    bool confirmDelete();

    BookletWatermarkModel& m_model;
    const Bundle* m_bundle;
    QComboBox* m_watermarkPopup;
    QToolButton* m_optionsButton;
    QMenu* m_optionsMenu;
    QLabel* m_optionsText; // the marked options, so they show without the menu
    QLabel* m_preview;
    QPushButton* m_bookletButton;
    std::uint64_t m_shownPreview = ~std::uint64_t(0);
};

class BookletWatermarkPanel : public ModelPanel<BookletWatermarkModel, BookletWatermarkView>
{
public:
    using ModelPanel::ModelPanel;

    // Title "BookletWatermarkPanelTitle".
    Description describe() const override;

protected:
    // Loads the watermark list and menus, then reads the session's tickets.
    Status loadModel(PrintSession* session) override;
};

} // namespace orvan
