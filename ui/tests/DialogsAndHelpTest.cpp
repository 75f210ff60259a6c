#include "ui/AlertBox.h"
#include "ui/CustomValueDialog.h"
#include "ui/Help.h"
#include "ui/LocalizedTitles.h"
#include "ui/SummaryView.h"

#include "settings/Bundle.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <tuple>

using namespace orvan;

namespace {

// Runs `step` on the first visible top-level widget with that object name
// once the event loop of a modal dialog runs; a dialog still open after five
// seconds is rejected so that a failing test cannot hang.
void whenShown(const QString& objectName, std::function<void(QWidget*)> step)
{
    QTimer::singleShot(0, [objectName, step] {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == objectName && widget->isVisible())
                return step(widget);
        ADD_FAILURE() << "no visible " << objectName.toStdString();
    });
    QTimer::singleShot(5000, [] {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* dialog = qobject_cast<QDialog*>(widget); dialog && dialog->isVisible())
                dialog->reject();
    });
}

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
// its page and leaves the dialog open.
TEST(CustomValueDialog, OkCancelAndHelp)
{
    const Bundle bundle(ORVAN_PLUGIN_DIR, "en");
    HelpCapture help;
    QString value = "pre", prefilled, title;
    int result = 0;
    whenShown("CustomValue", [&](QWidget* dialog) {
        auto* field = dialog->findChild<QLineEdit*>("CustomValueField");
        prefilled = field->text();
        title = dialog->windowTitle();
        field->clear();
        QTest::keyClicks(field, "abcdefg");
        dialog->findChild<QPushButton*>("OKButton")->click();
    });
    EXPECT_EQ(RunModalCustomValueDialog(&bundle, 1, 5, value, result), kNoError);
    EXPECT_EQ(prefilled, "pre");
    EXPECT_EQ(title, "Custom Value");
    EXPECT_EQ(result, kCustomValueOK);
    EXPECT_EQ(value, "abcde");

    bool openAfterHelp = false;
    whenShown("CustomValue", [&](QWidget* dialog) {
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

TEST(SummaryView, ShowsTextReadOnlyAndRefusesANullText)
{
    QTextEdit view;
    EXPECT_EQ(UpdateSummaryTextView(&view, QString()), kBadParameter);
    EXPECT_EQ(UpdateSummaryTextView(static_cast<QTextEdit*>(nullptr), "x"), kBadParameter);
    EXPECT_EQ(UpdateSummaryTextView(&view, "Letter, White, Plain <b>"), kNoError);
    EXPECT_EQ(view.toPlainText(), "Letter, White, Plain <b>"); // plain text, not markup
    EXPECT_TRUE(view.isReadOnly());
    QPlainTextEdit plain("old");
    EXPECT_EQ(UpdateSummaryTextView(&plain, ""), kNoError);
    EXPECT_EQ(plain.toPlainText(), "");
    EXPECT_TRUE(plain.isReadOnly());
}

TEST(Help, BundleWithoutAHelpBookNameIsABadParameter)
{
    HelpCapture help;
    QTemporaryDir dir;
    writeFile(dir.filePath("Info.plist"), infoPlist(""));
    writeFile(dir.filePath("Resources/help/index.html"), "<html></html>");
    EXPECT_EQ(DisplayHelp(nullptr, "index.html", {}), kBadParameter);
    {
        const Bundle noBook(dir.path());
        EXPECT_EQ(DisplayHelp(&noBook, "index.html", {}), kBadParameter);
    }
    writeFile(dir.filePath("Info.plist"),
              infoPlist("<key>CFBundleHelpBookName</key><integer>3</integer>"));
    const Bundle bookNameNotAString(dir.path());
    EXPECT_EQ(DisplayHelp(&bookNameNotAString, "index.html", {}), kBadParameter);
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
    const auto url = [book = QDir(dir.path()).canonicalPath() + "/Resources/help/"](
                         const char* page) { return QUrl::fromLocalFile(book + page).toString(); };

    // Page, anchor, the URL opened.
    const std::tuple<const char*, const char*, QString> rows[] = {
        {"stock/paper.htm", "colours", url("stock/paper.htm") + "#colours"},
        {"stock/paper.htm", "", url("stock/paper.htm")},
        {"", "", url("index.html")},
        {"", "colours", url("stock/paper.htm") + "#colours"}, // found in the book
        {"", "top", url("index.html") + "#top"},
        {"", "nowhere", url("index.html") + "#nowhere"},
    };
    for (const auto& [page, anchor, expectedUrl] : rows) {
        help.urls.clear();
        EXPECT_EQ(DisplayHelp(&bundle, page, anchor), kNoError) << page << " " << anchor;
        ASSERT_EQ(help.urls.size(), 1);
        const QUrl expected(expectedUrl);
        EXPECT_EQ(
            QUrl::fromLocalFile(QFileInfo(help.urls[0].toLocalFile()).canonicalFilePath()).path(),
            expected.path());
        EXPECT_EQ(help.urls[0].fragment(), expected.fragment());
    }

    EXPECT_EQ(DisplayHelp(&bundle, "missing.htm", {}), kFileNotFound);
    EXPECT_EQ(DisplayHelp(&bundle, "../../Info.plist", {}), kFileNotFound);
    help.opens = false;
    EXPECT_EQ(DisplayHelp(&bundle, {}, {}), kHelpNotOpened);
}

TEST(Help, ThePluginsBookHasAStartPage)
{
    HelpCapture help;
    const Bundle bundle(ORVAN_PLUGIN_DIR, "en");
    EXPECT_EQ(DisplayHelp(&bundle, {}, {}), kNoError);
    ASSERT_EQ(help.urls.size(), 1);
    EXPECT_TRUE(help.urls[0].toLocalFile().endsWith("/Resources/help/index.html"));
}

TEST(Alerts, LevelsShowAsMessageBoxIcons)
{
    AlertPresenter previous = InstallMessageBoxAlertPresenter();
    QMessageBox::Icon shownIcon = QMessageBox::NoIcon;
    QString shownText;
    whenShown("Alert", [&](QWidget* widget) {
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

TEST(LocalizedTitles, KeysAreLookedUpAndFormatted)
{
    const Bundle bundle(ORVAN_PLUGIN_DIR, "en");
    QWidget window;
    auto* label = new QLabel(&window);
    auto* group = new QGroupBox(&window);
    SetLocalizedStaticText(&bundle, "CustomValueTitle", label);
    EXPECT_EQ(label->text(), "Custom Value");
    // A key without a text is its own format.
    SetLocalizedControlTitle(&bundle, "Copies %1 of %2", group, {"2", "5"});
    EXPECT_EQ(group->title(), "Copies 2 of 5");
    SetLocalizedWindowTitle(&bundle, "PrinterDefault", label); // the label's window
    EXPECT_EQ(window.windowTitle(), "Printer Default");
}
