#include "ui/AlertBox.h"
#include "ui/CustomValueDialog.h"
#include "ui/Help.h"
#include "ui/SummaryView.h"

#include "settings/Bundle.h"
#include "tests/support/WhenShown.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>

#include <gtest/gtest.h>

#include <tuple>

using namespace orvan;

namespace {

using orvan::testing::WhenShown;

// Records the URLs help would have opened, instead of starting a browser.
class HelpCapture
{
public:
    HelpCapture()
    {
        m_previous = SetHelpUrlOpener([this](const QUrl& url) {
            urls << url;
            return opens;
        });
    }
    ~HelpCapture() { SetHelpUrlOpener(std::move(m_previous)); }

    QList<QUrl> urls;
    bool opens = true;

private:
    HelpUrlOpener m_previous;
};

void writeFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray infoPlist(const QByteArray& helpBookEntry)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
           "<key>CFBundleIdentifier</key><string>test.bundle</string>" +
           helpBookEntry + "</dict></plist>\n";
}

} // namespace

// OK returns the text cut to its limits; Cancel a null string; Help opens
// its page in the plug-in's book and leaves the dialog open.
TEST(CustomValueDialog, OkCancelAndHelp)
{
    const Bundle bundle(ORVAN_PLUGIN_DIR, "en");
    HelpCapture help;
    QString value = "pre", prefilled, title;
    int result = 0;
    WhenShown("CustomValue", [&](QWidget* dialog) {
        auto* field = dialog->findChild<QLineEdit*>("CustomValueField");
        prefilled = field->text();
        title = dialog->windowTitle();
        field->clear();
        QTest::keyClicks(field, "abcdefg");
        dialog->findChild<QPushButton*>("OKButton")->click();
    });
    EXPECT_EQ(RunModalCustomValueDialog(&bundle, 1, 5, value, result), kNoError);
    EXPECT_EQ(prefilled + "|" + title, "pre|Custom Value");
    EXPECT_EQ(result, kCustomValueOK);
    EXPECT_EQ(value, "abcde");

    bool openAfterHelp = false;
    WhenShown("CustomValue", [&](QWidget* dialog) {
        dialog->findChild<QPushButton*>("HelpButton")->click();
        openAfterHelp = dialog->isVisible();
        dialog->findChild<QPushButton*>("CancelButton")->click();
    });
    RunModalCustomValueDialog(&bundle, 0, 0, value, result);
    EXPECT_EQ(result, kCustomValueCancel);
    EXPECT_TRUE(value.isNull());
    EXPECT_TRUE(openAfterHelp);
    ASSERT_EQ(help.urls.size(), 1);
    EXPECT_TRUE(
        help.urls[0].toLocalFile().endsWith("/Resources/help/image_options/db_custom_color_d.htm"));
}

TEST(SummaryView, ShowsPlainTextReadOnlyAndRefusesANullText)
{
    QTextEdit view;
    EXPECT_EQ(UpdateSummaryTextView(&view, QString()), kBadParameter);
    EXPECT_EQ(UpdateSummaryTextView(static_cast<QTextEdit*>(nullptr), "x"), kBadParameter);
    EXPECT_EQ(UpdateSummaryTextView(&view, "Letter, White, Plain <b>"), kNoError);
    EXPECT_EQ(view.toPlainText(), "Letter, White, Plain <b>"); // not markup
    EXPECT_TRUE(view.isReadOnly());
}

TEST(Help, BundleWithoutAHelpBookNameIsABadParameter)
{
    HelpCapture help;
    QTemporaryDir dir;
    writeFile(dir.filePath("Resources/help/index.html"), "<html></html>");
    EXPECT_EQ(DisplayHelp(nullptr, "index.html", {}), kBadParameter);
    for (const QByteArray& entry :
         {QByteArray(), QByteArray("<key>CFBundleHelpBookName</key><integer>3</integer>")}) {
        writeFile(dir.filePath("Info.plist"), infoPlist(entry));
        const Bundle bundle(dir.path());
        EXPECT_EQ(DisplayHelp(&bundle, "index.html", {}), kBadParameter) << entry.constData();
    }
    EXPECT_TRUE(help.urls.isEmpty());
}

TEST(Help, PagesOpenAtTheirAnchorAndAnchorsAreFoundInTheBook)
{
    HelpCapture help;
    QTemporaryDir dir;
    writeFile(dir.filePath("Info.plist"),
              infoPlist("<key>CFBundleHelpBookName</key><string>Test Help</string>"));
    writeFile(dir.filePath("Resources/help/index.html"), "<h1 id=\"top\">Start</h1>");
    writeFile(dir.filePath("Resources/help/stock/paper.htm"), "<h2 id='colours'>Colours</h2>");
    const Bundle bundle(dir.path());

    // Page, anchor; the page and anchor opened.
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"stock/paper.htm", "colours", "stock/paper.htm#colours"},
        {"", "", "index.html"},
        {"", "colours", "stock/paper.htm#colours"}, // found in the book
        {"", "nowhere", "index.html#nowhere"},
    };
    const QString book = QDir(dir.path()).canonicalPath() + "/Resources/help/";
    for (const auto& [page, anchor, expected] : rows) {
        help.urls.clear();
        EXPECT_EQ(DisplayHelp(&bundle, page, anchor), kNoError) << page << " " << anchor;
        ASSERT_EQ(help.urls.size(), 1);
        const QUrl& url = help.urls[0];
        const QString opened = QFileInfo(url.toLocalFile()).canonicalFilePath().mid(book.size());
        EXPECT_EQ(opened + (url.hasFragment() ? "#" + url.fragment() : ""), expected);
    }

    EXPECT_EQ(DisplayHelp(&bundle, "missing.htm", {}), kFileNotFound);
    EXPECT_EQ(DisplayHelp(&bundle, "../../Info.plist", {}), kFileNotFound);
    help.opens = false;
    EXPECT_EQ(DisplayHelp(&bundle, {}, {}), kHelpNotOpened);
}

TEST(Alerts, LevelsShowAsMessageBoxIcons)
{
    AlertPresenter previous = InstallMessageBoxAlertPresenter();
    QMessageBox::Icon shownIcon = QMessageBox::NoIcon;
    QString shownText;
    WhenShown("Alert", [&](QWidget* widget) {
        auto* box = qobject_cast<QMessageBox*>(widget);
        ASSERT_NE(box, nullptr);
        shownIcon = box->icon();
        shownText = box->text() + "|" + box->informativeText();
        box->accept();
    });
    ShowAlert({AlertLevel::Stop, "Invalid page range", "Enter pages between 1 and 999."});
    SetAlertPresenter(std::move(previous));
    EXPECT_EQ(shownIcon, QMessageBox::Critical);
    EXPECT_EQ(shownText, "Invalid page range|Enter pages between 1 and 999.");
}
