// The Job Notes pane: three name combo boxes with input history, the banner
// and job start messages, and the Defaults... button. It shows a
// JobNotesModel and hands every edit to it.
#pragma once

#include "paperoutput/JobNotesModel.h"

#include <QWidget>

#include <array>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace orvan {

class Bundle;

// Object names: the view "JobNotesEnhanced"; "JobNameBox", "SenderNameBox",
// "RecipientNameBox"; "BannerMessageField", "JobStartMessageField";
// "JobNotesDefaultsButton".
class JobNotesView : public QWidget
{
    Q_OBJECT

public:
    JobNotesView(JobNotesModel& model, const Bundle* bundle, QWidget* parent);

    // Shows the model's names and messages.
    void showModel();

    // With save, records each box's text in its input history; then the boxes
    // stop keeping a history. Called once, when the panel closes.
    void finalize(bool save);

    // Whether the dialog's window was sent the OK command (the user clicked
    // Print) since the view was made.
    bool printRequested() const { return m_printRequested; }

    QComboBox* nameBox(JobNotesName which) const
    {
        return m_nameBoxes[static_cast<std::size_t>(which)];
    }
    QLineEdit* bannerMessageField() const { return m_bannerMessage; }
    QLineEdit* jobStartMessageField() const { return m_jobStartMessage; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void nameEdited(JobNotesName which);
    void editDefaults();

    JobNotesModel& m_model;
    const Bundle* m_bundle;
    std::array<QComboBox*, 3> m_nameBoxes{};
    QLineEdit* m_bannerMessage;
    QLineEdit* m_jobStartMessage;
    QPushButton* m_defaults;
    QWidget* m_window;
    bool m_printRequested = false;
};

} // namespace orvan
