#include "settings/Bundle.h"
#include "settings/TicketFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace orvan;

TEST(Bundle, PluginFolderHasIdentifierTablesAndHelpBook)
{
    const Bundle bundle(ORVAN_PLUGIN_DIR, "en");
    ASSERT_TRUE(bundle.isValid());
    EXPECT_EQ(bundle.identifier(), kBundleIdentifier);
    EXPECT_TRUE(bundle.infoDictionary().find("CFBundleHelpBookName")->isString());
    EXPECT_EQ(bundle.localizedString("PrinterDefault"), "Printer Default");
    // A missing key is told apart from a present one, in any table.
    EXPECT_FALSE(bundle.localizedString("No Such Key"));
    EXPECT_FALSE(bundle.localizedString("PrinterDefault", "NoSuchTable"));
    EXPECT_EQ(bundle.localizedString("No Such Key", kStringNotFound, kDefaultStringTable), kStringNotFound);
    EXPECT_TRUE(bundle.resourcePath("no-such-file.png").isEmpty());
}

TEST(Bundle, FolderWithoutInfoIsInvalidButHarmless)
{
    QTemporaryDir dir;
    const Bundle bundle(dir.path());
    EXPECT_FALSE(bundle.isValid());
    EXPECT_TRUE(bundle.identifier().isEmpty());
    EXPECT_FALSE(bundle.localizedString("PrinterDefault"));
}

TEST(TicketFile, SessionRoundTripsItemsClientsLocksAndNumberTypes)
{
    PrintSession session;
    session.setCurrentPrinter(Printer{"orvan-4100", "/etc/cups/ppd/orvan-4100.ppd"});
    Ticket& settings = session.printSettings();
    settings.setItem(kShellClient, "com.orvan.print.ControllerInformation.ControllerFamily", PropertyValue("Meridian"));
    settings.setItem(kPanelClient, "com.orvan.print.JobType", PropertyValue::integer(6, NumberType::SInt32), true);
    settings.setItem(kPanelClient, "com.orvan.print.DelayedPrintTime",
                     PropertyValue::integer(5'000'000'000LL, NumberType::SInt64));
    settings.setItem(kPanelClient, "com.orvan.print.Gutter", PropertyValue::real(0.25, NumberType::Float32));
    PropertyValue stock = PropertyValue::dictionary();
    stock.insert("Color", PropertyValue::integer(1));
    settings.setItem(kRecordClient, "com.orvan.print.JobLevelStock", stock);
    settings.ppdDictionary().insert("Resolution", PropertyValue("1200x1200dpi"));
    session.pageFormat().setItem("com.apple.printingmanager", "com.apple.print.PageFormat.PMOrientation",
                                 PropertyValue::integer(1));
    session.printerInfo().ensureSubTicket("sub").setItem("c", "k", PropertyValue::boolean(true));

    QTemporaryDir dir;
    const QString path = dir.filePath("job.plist");
    QString error;
    ASSERT_TRUE(saveTicketFile(path, session, &error)) << error.toStdString();

    PrintSession loaded;
    ASSERT_TRUE(loadTicketFile(path, loaded, &error)) << error.toStdString();
    EXPECT_EQ(loaded.printSettings(), session.printSettings());
    EXPECT_EQ(loaded.pageFormat(), session.pageFormat());
    EXPECT_EQ(loaded.printerInfo(), session.printerInfo());
    EXPECT_EQ(loaded.currentPrinter(), session.currentPrinter());
    const TicketItem* jobType = loaded.printSettings().item("com.orvan.print.JobType");
    EXPECT_EQ(jobType->client, kPanelClient);
    EXPECT_TRUE(jobType->locked);
    EXPECT_EQ(jobType->value.numberType(), NumberType::SInt32);
    EXPECT_EQ(loaded.printSettings().value("com.orvan.print.Gutter")->numberType(), NumberType::Float32);
    EXPECT_EQ(loaded.printSettings().item("com.orvan.print.ControllerInformation.ControllerFamily")->client, "Q");
}

TEST(TicketFile, BadFilesAreRefusedAndTheSessionKept)
{
    QTemporaryDir dir;
    PrintSession session;
    session.printSettings().setItem(kPanelClient, "keep", PropertyValue("me"));
    const std::pair<const char*, QByteArray> rows[] = {
        {"not xml", "garbage"},
        {"not a ticket file", "<plist><dict><key>x</key><string>y</string></dict></plist>"},
        {"item without value",
         "<plist><dict><key>OrvanTicketFileVersion</key><integer>1</integer><key>PMPrintSettingsTicket</key>"
         "<dict><key>Items</key><dict><key>a</key><dict><key>Client</key><string>Q</string></dict></dict></dict>"
         "</dict></plist>"},
    };
    for (const auto& [what, bytes] : rows) {
        const QString path = dir.filePath("bad.plist");
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(bytes);
        f.close();
        QString error;
        EXPECT_FALSE(loadTicketFile(path, session, &error)) << what;
        EXPECT_TRUE(error.contains("bad.plist")) << error.toStdString();
        EXPECT_EQ(session.printSettings().string("keep"), "me") << what;
    }
    QString error;
    EXPECT_FALSE(loadTicketFile(dir.filePath("missing.plist"), session, &error));
    EXPECT_TRUE(error.contains("cannot read"));
}
