// The fax setup dialog driven offscreen as a user would, on a folder of
// real vCard files; what it hands back travels in a saved ticket.
#include "fax/LANFaxSetupDialog.h"
#include "fax/FaxOptions.h"
#include "settings/Bundle.h"
#include "settings/PrintSession.h"
#include "settings/Ticket.h"
#include "settings/TicketFile.h"
#include "tests/support/WhenShown.h"
#include "ui/PopupMenus.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

using namespace orvan;

namespace {

using orvan::testing::WhenShown;

template <typename T> T* control(QWidget* window, const char* name)
{
    T* found = window->findChild<T*>(QString::fromLatin1(name));
    EXPECT_TRUE(found) << name;
    return found;
}

void click(QWidget* window, const char* name)
{
    if (auto* button = control<QAbstractButton>(window, name))
        button->click();
}

void choose(QWidget* window, const char* popupName, std::int32_t ticketValue)
{
    auto* popup = control<QComboBox>(window, popupName);
    ASSERT_TRUE(SetPopupButtonToTicketValue(popup, ticketValue));
    emit popup->activated(popup->currentIndex());
}

void answerQuestion(QMessageBox::StandardButton answer)
{
    WhenShown("FaxQuestion",
              [answer](QWidget* box) { static_cast<QMessageBox*>(box)->button(answer)->click(); });
}

// With ORVAN_SCREENSHOT_DIR set, keeps a picture of the window for review.
void saveScreenshot(QWidget* window, const char* name)
{
    if (const QByteArray folder = qgetenv("ORVAN_SCREENSHOT_DIR"); !folder.isEmpty())
        window->grab().save(QString::fromLocal8Bit(folder) + u'/' + QString::fromLatin1(name));
}

class LANFaxSetupDialogTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_home.isValid());
        qputenv("XDG_DATA_HOME", m_home.filePath("data").toUtf8());
        qputenv("XDG_CONFIG_HOME", m_home.filePath("config").toUtf8());
        const QString contacts = m_home.filePath("data/orvan/contacts");
        ASSERT_TRUE(QDir().mkpath(contacts));
        writeCard(contacts + "/kim-berg.vcf",
                  "BEGIN:VCARD\r\nVERSION:4.0\r\nUID:urn:uuid:6f1c2a40-kim\r\nFN:Kim Berg\r\n"
                  "N:Berg;Kim;;;\r\nORG:Berg Analytics\r\nTEL;TYPE=work,voice:+46 8 555 0100\r\n"
                  "TEL;VALUE=uri;TYPE=work,fax:tel:+46-8-555-0101\r\n"
                  "EMAIL;TYPE=work:kim@berg.example\r\nX-ORVAN-MAILBOX:44\r\nEND:VCARD\r\n");
        writeCard(contacts + "/luz-ortiz.vcf",
                  "BEGIN:VCARD\nVERSION:3.0\nUID:luz-ortiz\nN:Ortiz;Luz;;;\nFN:Luz Ortiz\n"
                  "ORG:Ortiz\\, Vega & Sons\nTEL;TYPE=WORK,FAX:+1 555 010 2030\nEND:VCARD\n");
        writeCard(contacts + "/sales.vcf",
                  "BEGIN:VCARD\r\nVERSION:4.0\r\nKIND:group\r\nUID:urn:uuid:sales\r\n"
                  "FN:Sales Partners\r\nMEMBER:urn:uuid:6f1c2a40-kim\r\nMEMBER:luz-ortiz\r\n"
                  "END:VCARD\r\n");
        m_bundle = std::make_unique<Bundle>(QStringLiteral(ORVAN_PLUGIN_DIR));
        m_previousPresenter =
            SetAlertPresenter([this](const Alert& alert) { m_alerts.push_back(alert); });
    }
    void TearDown() override { SetAlertPresenter(std::move(m_previousPresenter)); }

    static void writeCard(const QString& path, const QByteArray& text)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QTemporaryDir m_home;
    std::unique_ptr<Bundle> m_bundle;
    std::vector<Alert> m_alerts;
    AlertPresenter m_previousPresenter;
};

} // namespace

TEST_F(LANFaxSetupDialogTest, TypedAndAddressBookRecipientsReachTheTicketWithTheOptions)
{
    // The panel keeps the list in its ticket form.
    PropertyValue options = PropertyValue::dictionary();
    PropertyValue recipients = PropertyValue::array();

    WhenShown("LANFaxSetup", [this](QWidget* dialog) {
        QTest::keyClicks(control<QLineEdit>(dialog, "FaxTypedName"), "Ann Lee");
        QTest::keyClicks(control<QLineEdit>(dialog, "FaxTypedNumber"), "+1 (555) 123-4567");
        click(dialog, "FaxAddTyped");

        WhenShown("FaxAddressBook", [](QWidget* picker) {
            saveScreenshot(picker, "lan-fax-address-book.png");
            QTest::keyClicks(control<QLineEdit>(picker, "FaxAddressBookSearch"), "berg");
            auto* list = control<QListWidget>(picker, "FaxAddressBookList");
            ASSERT_EQ(list->count(), 1);
            list->item(0)->setSelected(true);
            click(picker, "OKButton");
        });
        click(dialog, "FaxAddressBookButton");
        EXPECT_EQ(control<QTreeWidget>(dialog, "FaxRecipients")->topLevelItemCount(), 2);

        choose(dialog, "FaxSendSpeed", kSendSpeedG3);
        choose(dialog, "FaxResolution", kFaxResolutionSuperfine);
        choose(dialog, "FaxConfirmationSheet", kNoConfirmationSheet);
        click(dialog, "FaxSendLater");
        control<QDateTimeEdit>(dialog, "FaxSendTime")
            ->setDateTime(QDateTime::currentDateTime().addDays(1));
        click(dialog, "FaxDialingPrefixOn");
        QTest::keyClicks(control<QLineEdit>(dialog, "FaxDialingPrefix"), "9,");
        saveScreenshot(dialog, "lan-fax-setup.png");
        click(dialog, "OKButton");
    });
    ASSERT_TRUE(RunModalLANFaxSetupOnTicketForm(m_bundle.get(), options, recipients, nullptr));
    EXPECT_TRUE(m_alerts.empty());

    // Print: the panel writes both into the print-settings ticket. The
    // number kinds are checked there (a ticket file keeps only the kinds of
    // its top-level items); the values after the ticket is saved and read
    // back as the printing side reads it.
    PrintSession session;
    session.printSettings().setItem(kPanelClient, kFaxRecipientListKey, recipients);
    session.printSettings().setItem(kPanelClient, kFaxOptionsKey, options);
    const PropertyValue* written = session.printSettings().dictionary(kFaxOptionsKey);
    ASSERT_TRUE(written);
    EXPECT_EQ(written->find("SendSpeed")->numberType(), NumberType::CFIndex);
    EXPECT_EQ(written->find("Resolution")->numberType(), NumberType::CFIndex);
    EXPECT_EQ(written->find("SendTime")->numberType(), NumberType::SInt64);
    const QString ticketPath = m_home.filePath("job.ticket");
    ASSERT_TRUE(saveTicketFile(ticketPath, session));
    PrintSession printed;
    ASSERT_TRUE(loadTicketFile(ticketPath, printed));

    const PropertyValue* list = printed.printSettings().array(kFaxRecipientListKey);
    ASSERT_TRUE(list);
    ASSERT_EQ(list->size(), 2u);
    PropertyValue ann = PropertyValue::dictionary();
    ann.insert("FirstName", "Ann");
    ann.insert("LastName", "Lee");
    ann.insert("FaxNumber", "+1 (555) 123-4567");
    EXPECT_EQ(list->asArray()[0], ann);
    PropertyValue kim = PropertyValue::dictionary();
    for (const auto& [key, value] : std::initializer_list<std::pair<const char*, const char*>>{
             {"FirstName", "Kim"},
             {"LastName", "Berg"},
             {"FaxNumber", "+46-8-555-0101"},
             {"FaxNumberLabel", "work fax"},
             {"Organization", "Berg Analytics"},
             {"PhoneNumber", "+46 8 555 0100"},
             {"EmailAddress", "kim@berg.example"},
             {"Mailbox", "44"},
             {"UID", "urn:uuid:6f1c2a40-kim"}})
        kim.insert(key, value);
    EXPECT_EQ(list->asArray()[1], kim);

    const PropertyValue* faxOptions = printed.printSettings().dictionary(kFaxOptionsKey);
    ASSERT_TRUE(faxOptions);
    EXPECT_EQ(*faxOptions->find("SendSpeed"), PropertyValue::integer(2));
    EXPECT_EQ(*faxOptions->find("Resolution"), PropertyValue::integer(3));
    EXPECT_EQ(*faxOptions->find("ConfirmationSheet"), PropertyValue::boolean(false));
    EXPECT_GT(*faxOptions->find("SendTime")->toInteger(), QDateTime::currentSecsSinceEpoch());
    EXPECT_EQ(*faxOptions->find("DialingPrefix"), PropertyValue("9,"));
    EXPECT_FALSE(faxOptions->contains("CreditCard"));
    EXPECT_EQ(*faxOptions->find("CoverSheet"), PropertyValue::boolean(false));
}

TEST_F(LANFaxSetupDialogTest, QuestionsAlertsAndCancelGuardTheJob)
{
    PropertyValue options = PropertyValue::dictionary();
    FaxRecipientList recipients;
    recipients.append(std::make_shared<FaxRecipient>("Ann", "Lee", "555 0100"));
    const PropertyValue before = recipients.toTicket();

    WhenShown("LANFaxSetup", [this](QWidget* dialog) {
        auto* list = control<QTreeWidget>(dialog, "FaxRecipients");
        auto* name = control<QLineEdit>(dialog, "FaxTypedName");
        auto* number = control<QLineEdit>(dialog, "FaxTypedNumber");
        // A duplicate is asked about; "No" keeps the list as it was.
        QTest::keyClicks(name, "Ann Lee");
        QTest::keyClicks(number, "555 0100");
        answerQuestion(QMessageBox::No);
        click(dialog, "FaxAddTyped");
        EXPECT_EQ(list->topLevelItemCount(), 1);
        // A number with nothing to dial is refused with an alert.
        number->setText("call me");
        click(dialog, "FaxAddTyped");
        EXPECT_EQ(m_alerts.size(), 1u);
        EXPECT_EQ(list->topLevelItemCount(), 1);
        // Removing asks first.
        list->topLevelItem(0)->setSelected(true);
        answerQuestion(QMessageBox::Yes);
        click(dialog, "FaxRemoveButton");
        EXPECT_EQ(list->topLevelItemCount(), 0);
        // A send time already past keeps the dialog open with an alert.
        click(dialog, "FaxSendLater");
        control<QDateTimeEdit>(dialog, "FaxSendTime")
            ->setDateTime(QDateTime::currentDateTime().addSecs(-3600));
        click(dialog, "OKButton");
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_EQ(m_alerts.size(), 2u);
        click(dialog, "CancelButton");
    });
    EXPECT_FALSE(RunModalLANFaxSetup(m_bundle.get(), &options, &recipients));
    EXPECT_EQ(recipients.toTicket(), before);
    EXPECT_EQ(options, PropertyValue::dictionary());
}
