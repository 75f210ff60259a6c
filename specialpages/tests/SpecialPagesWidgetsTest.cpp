// The Special Pages pane and its dialogs, offscreen: a user's session through
// the buttons and dialogs, and bad page texts kept in an open dialog.
#include "SpecialPagesUserSteps.h"

#include "platform/Alerts.h"
#include "settings/PrintSession.h"
#include "specialpages/SpecialPagesPanel.h"
#include "stock/tests/StockTestSupport.h"
#include "ui/AlertBox.h"

#include <QVBoxLayout>

namespace orvan {
namespace {

using namespace testing;

class SpecialPagesPaneTest : public ::testing::Test
{
protected:
    SpecialPagesPaneTest()
    {
        previousAlert = SetAlertPresenter([this](const Alert& alert) { alerts.push_back(alert); });
        previousQuestion = InstallMessageBoxQuestionPresenter();
        new QVBoxLayout(&pane);
        panel.initialize(&pane, &session);
        panel.sync(&session, true);
        pane.resize(640, 360);
        pane.show();
    }
    ~SpecialPagesPaneTest() override
    {
        SetAlertPresenter(previousAlert);
        SetQuestionPresenter(previousQuestion);
    }

    CurrentPrinterGuard printer;
    std::unique_ptr<Bundle> bundle = EnglishPluginBundle();
    PrintSession session;
    QWidget pane;
    SpecialPagesPanel panel{bundle.get()};
    std::vector<Alert> alerts;
    AlertPresenter previousAlert;
    QuestionPresenter previousQuestion;
};

// The ticket the session makes is checked end to end by the Print dialog's
// test; here, editing a row opens its own dialog with the row's pages.
TEST_F(SpecialPagesPaneTest, AUsersSessionThenEditingARow)
{
    AddSpecialPagesAsAUserWould(&pane);
    EXPECT_TRUE(alerts.empty());
    SelectRows(&pane, {5});
    RunCommand(&pane, "EditButton", "ExceptionsDialog", [](QWidget* dialog) {
        EXPECT_EQ(Control<QLineEdit>(dialog, "PagesField")->text(), "10-12");
        TypePages(dialog, QStringLiteral("11-12"));
        ClickOK(dialog);
    });
    EXPECT_EQ(ListedPages(&pane), "Front | 7 | 7 | 1 | 4-6 | 11-12");
}

// The field refuses other characters; a bad text raises its alert and the
// dialog stays open with the text as typed.
TEST_F(SpecialPagesPaneTest, BadPagesKeepTheDialogOpenWithTheText)
{
    RunCommand(&pane, "AddExceptionsButton", "ExceptionsDialog", [this](QWidget* dialog) {
        TypePages(dialog, QStringLiteral("1a, 4-6!"));
        EXPECT_EQ(Control<QLineEdit>(dialog, "PagesField")->text(), "1, 4-6");
        for (const char* text : {"100000", "4--6", "5-3", "0-2"}) {
            TypePages(dialog, QLatin1String(text));
            ClickOK(dialog);
            EXPECT_TRUE(dialog->isVisible()) << text;
            EXPECT_EQ(Control<QLineEdit>(dialog, "PagesField")->text(), text);
        }
        static_cast<QDialog*>(dialog)->reject();
    });
    ASSERT_EQ(alerts.size(), 4u);
    EXPECT_EQ(alerts[0].title, "Page Number Too Large");
    EXPECT_EQ(alerts[3].title, "Invalid Page Number");
    EXPECT_EQ(ListedPages(&pane), "");
    EXPECT_FALSE(Control<QAbstractButton>(&pane, "UndoButton")->isEnabled());
}

} // namespace
} // namespace orvan
