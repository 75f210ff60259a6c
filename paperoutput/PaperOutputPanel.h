// The Paper/Output panel: the shell's first tab. PaperOutputView shows a
// PaperOutputModel and hands control hits to it, running the dialogs the
// model asks for; PaperOutputPanel is the panel the shell drives, with or
// without the view, and the source of the shell's OK guard.
#pragma once

#include "paperoutput/PaperOutputModel.h"
#include "shell/ModelPanel.h"

#include <QWidget>

#include <map>

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace orvan {

class Bundle;
class StockButton;

// Object names: "PaperOutput" (the view), "JobTypePopup", "JobTypeSetupButton",
// "TwoSidedPopup", "StaplePopup", "PunchPopup", "FoldPopup",
// "OutputDestinationPopup", "CoversButton", "SeparatorsButton",
// "FinishingSummary", "JobTypeIcon", "TwoSidedIcon", "FinishingIcon"; the
// stock button's own names (stock/StockButton.h).
class PaperOutputView : public QWidget
{
    Q_OBJECT

public:
    PaperOutputView(PaperOutputModel& model, const Bundle* bundle, QWidget* parent);

    // Refills the pop-ups from the model's menus and shows the model.
    void reloadMenus();
    // Shows the model's selections, summaries, pictures and enabling.
    void showModel();

    QComboBox* popup(std::int32_t controlID) const;

private:
    void controlHit(std::int32_t controlID, int item);
    void command(std::uint32_t command);
    void run(PaperOutputAction action);
    void showIcon(QLabel* label, const QString& imageName);

    PaperOutputModel& m_model;
    const Bundle* m_bundle;
    std::map<std::int32_t, QComboBox*> m_popups;
    QPushButton* m_setup;
    QPushButton* m_covers;
    QPushButton* m_separators;
    StockButton* m_stock;
    QPlainTextEdit* m_finishingSummary;
    QLabel* m_jobTypeIcon;
    QLabel* m_twoSidedIcon;
    QLabel* m_finishingIcon;
};

class PaperOutputPanel : public ModelPanel<PaperOutputModel, PaperOutputView>,
                         public BookletCreationSource
{
public:
    // The bundle is the shell's (the plug-in's own) unless given.
    PaperOutputPanel();
    explicit PaperOutputPanel(const Bundle* bundle);

    // Title "PaperOutput".
    Description describe() const override;
    PrintGuardSource* printGuardSource() override { return &model(); }
    // Other panels open the booklet creation dialog on this panel's record.
    BookletCreationSource* bookletCreationSource() override { return this; }
    bool runBookletCreation(QWidget* parent) override;

protected:
    // Fills the model from the current PPD and installed features, reads the
    // job name and turns booklet layout off in the ticket. kMissingContext
    // without a session.
    Status loadModel(PrintSession* session) override;
};

} // namespace orvan
