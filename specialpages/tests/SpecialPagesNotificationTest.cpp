#include "specialpages/SpecialPagesNotification.h"
#include "platform/Alerts.h"
#include "settings/Bundle.h"
#include "specialpages/PageRanges.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <map>

using namespace orvan;

namespace {

// Collects the alerts shown while it lives.
class AlertRecorder
{
public:
    AlertRecorder()
    {
        m_previous = SetAlertPresenter([this](const Alert& alert) { alerts.push_back(alert); });
    }
    ~AlertRecorder() { SetAlertPresenter(std::move(m_previous)); }

    std::vector<Alert> alerts;

private:
    AlertPresenter m_previous;
};

struct CodeKeys
{
    Status code;
    const char* title;
    const char* message;
};

constexpr CodeKeys kCodeKeys[] = {
    {kPageNumberLimit, "Page Number Limit Title", "Page Number Limit"},
    {kInvalidPageRanges, "Invalid Pages Title", "Invalid Page Ranges"},
    {kInvalidRangeOrder, "Invalid Ranges Title", "Invalid Range Order"},
    {kInvalidPageNumbers, "Invalid Page Numbers Title", "Invalid Page Numbers Message"},
    {kPageRangeConflict, "PageRangeConflictTitle", "PageRangeConflictMessage"},
};

// The English texts of the special pages' string file, by key.
std::map<QString, QString> englishTexts()
{
    QFile file(QStringLiteral(ORVAN_SOURCE_DIR "/resources/translations/specialpages.ts"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    std::map<QString, QString> texts;
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"source")
            source = xml.readElementText();
        else if (xml.name() == u"translation")
            texts[source] = xml.readElementText();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return texts;
}

} // namespace

TEST(SpecialPagesNotification, OneCautionAlertPerErrorCode)
{
    const QTemporaryDir folder;
    const Bundle bundle(folder.path());
    AlertRecorder recorder;
    for (const CodeKeys& entry : kCodeKeys) {
        recorder.alerts.clear();
        SpecialPagesUserNotification(entry.code, bundle);
        ASSERT_EQ(recorder.alerts.size(), 1u) << entry.code;
        EXPECT_EQ(recorder.alerts[0].level, AlertLevel::Caution);
        // A bundle without tables shows the fallback text.
        EXPECT_EQ(recorder.alerts[0].title, kStringNotFound);
        EXPECT_EQ(recorder.alerts[0].message, kStringNotFound);
    }
    recorder.alerts.clear();
    for (Status quiet : {kNoError, kBadParameter, Status{999}, Status{1004}})
        SpecialPagesUserNotification(quiet, bundle);
    EXPECT_TRUE(recorder.alerts.empty());
}

TEST(SpecialPagesNotification, TextsComeFromTheBundle)
{
    const Bundle bundle(QStringLiteral(ORVAN_PLUGIN_DIR), QStringLiteral("en"));
    const auto texts = englishTexts();
    for (const CodeKeys& entry : kCodeKeys) {
        for (const char* key : {entry.title, entry.message}) {
            ASSERT_TRUE(texts.count(QString::fromLatin1(key))) << key << " has no English text";
            ASSERT_TRUE(bundle.localizedString(QString::fromLatin1(key)))
                << key << " not in the compiled table";
        }
    }
    AlertRecorder recorder;
    for (const CodeKeys& entry : kCodeKeys) {
        recorder.alerts.clear();
        SpecialPagesUserNotification(entry.code, bundle);
        ASSERT_EQ(recorder.alerts.size(), 1u);
        EXPECT_EQ(recorder.alerts[0].title, texts.at(entry.title));
        if (entry.code != kPageNumberLimit)
            EXPECT_EQ(recorder.alerts[0].message, texts.at(entry.message));
    }
    recorder.alerts.clear();
    SpecialPagesUserNotification(kPageNumberLimit, bundle);
    // The limit message takes the number of digits a page number may have.
    ASSERT_TRUE(texts.at("Page Number Limit").contains(QStringLiteral("%1")));
    EXPECT_EQ(recorder.alerts.at(0).message, texts.at("Page Number Limit").arg(5));
}
