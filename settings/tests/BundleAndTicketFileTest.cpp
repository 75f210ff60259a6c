#include "settings/Bundle.h"
#include "settings/TicketFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

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
    EXPECT_EQ(bundle.localizedString("No Such Key", kStringNotFound, kDefaultStringTable),
              kStringNotFound);
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

namespace {

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeAll(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
}

// Values with their number types: equality of values ignores the types.
std::string typedText(const Ticket& ticket)
{
    return ticketToPropertyList(ticket).debugString().toStdString();
}

const char kTicketFileStart[] = "<plist><dict><key>OrvanTicketFileVersion</key><integer>1</"
                                "integer><key>PMPrintSettingsTicket</key>"
                                "<dict><key>Items</key><dict>";
const char kTicketFileEnd[] = "</dict></dict></dict></plist>";

} // namespace

TEST(TicketFile, SessionRoundTripsItemsClientsLocksAndEveryNumberType)
{
    PrintSession session;
    session.setCurrentPrinter(Printer{"orvan-4100", "/etc/cups/ppd/orvan-4100.ppd"});
    Ticket& settings = session.printSettings();
    settings.setItem(kShellClient, "com.orvan.print.ControllerInformation.ControllerFamily",
                     PropertyValue("Meridian"));
    settings.setItem(kPanelClient, "com.orvan.print.Gutter",
                     PropertyValue::real(0.3, NumberType::Float32), true);
    PropertyValue jobType = PropertyValue::dictionary();
    jobType.insert("JobType", PropertyValue::integer(6, NumberType::SInt32));
    jobType.insert("DelayedPrintTime", PropertyValue::integer(5'000'000'000LL, NumberType::SInt64));
    jobType.insert("Copies", PropertyValue::integer(2, NumberType::Int));
    jobType.insert("Name", PropertyValue("night run"));
    PropertyValue mark = PropertyValue::dictionary();
    mark.insert("Angle", PropertyValue::real(0.1, NumberType::Float32));
    mark.insert("Scale", PropertyValue::real(0.1));
    mark.insert("Size",
                PropertyValue::integer(-7)); // CFIndex, and SInt64 below: both read as <integer>
    mark.insert("Big", PropertyValue::integer(7, NumberType::SInt64));
    PropertyValue marks = PropertyValue::array();
    marks.append(PropertyValue("no numbers"));
    marks.append(mark);
    marks.append(PropertyValue::array());
    jobType.insert("Marks", marks);
    settings.setItem(kPanelClient, "com.orvan.print.JobTypeInfo", jobType);
    settings.ppdDictionary().insert("Resolution", PropertyValue("1200x1200dpi"));
    session.pageFormat().setItem("com.apple.printingmanager",
                                 "com.apple.print.PageFormat.PMOrientation",
                                 PropertyValue::integer(1));
    session.printerInfo().ensureSubTicket("sub").setItem("c", "k", PropertyValue::boolean(true));

    QTemporaryDir dir;
    const QString path = dir.filePath("job.plist");
    QString error;
    const mode_t savedMask = ::umask(022);
    ASSERT_TRUE(saveTicketFile(path, session, &error)) << error.toStdString();
    ::umask(savedMask);
    struct stat mode = {};
    ASSERT_EQ(::stat(QFile::encodeName(path).constData(), &mode), 0);
    EXPECT_EQ(mode.st_mode & 0777, 0600u) << "a ticket may hold a passcode";

    PrintSession loaded;
    ASSERT_TRUE(loadTicketFile(path, loaded, &error)) << error.toStdString();
    EXPECT_EQ(typedText(loaded.printSettings()), typedText(session.printSettings()));
    EXPECT_EQ(typedText(loaded.pageFormat()), typedText(session.pageFormat()));
    EXPECT_EQ(loaded.printerInfo(), session.printerInfo());
    EXPECT_EQ(loaded.currentPrinter(), session.currentPrinter());
    const TicketItem* gutter = loaded.printSettings().item("com.orvan.print.Gutter");
    EXPECT_EQ(gutter->client, kPanelClient);
    EXPECT_TRUE(gutter->locked);
    const PropertyValue* info = loaded.printSettings().value("com.orvan.print.JobTypeInfo");
    EXPECT_EQ(info->find("DelayedPrintTime")->numberType(), NumberType::SInt64);
    EXPECT_EQ(info->find("Marks")->asArray()[1].find("Angle")->numberType(), NumberType::Float32);
    EXPECT_EQ(loaded.printSettings()
                  .item("com.orvan.print.ControllerInformation.ControllerFamily")
                  ->client,
              "Q");

    const QString again = dir.filePath("again.plist");
    ASSERT_TRUE(saveTicketFile(again, loaded, &error)) << error.toStdString();
    EXPECT_EQ(readAll(again), readAll(path));
}

TEST(TicketFile, FileWithoutNestedTypesLoadsWithTheReadersTypes)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("old.plist");
    writeAll(path, QByteArray(kTicketFileStart) +
                       "<key>a</key><dict><key>Value</key><integer>3</integer><key>NumberType</"
                       "key><integer>3</integer>"
                       "<key>Client</key><string>Q</string></dict>"
                       "<key>b</key><dict><key>Value</key><dict><key>n</key><integer>4</integer>"
                       "<key>r</key><real>0.5</real></dict></dict>" +
                       kTicketFileEnd);
    PrintSession session;
    QString error;
    ASSERT_TRUE(loadTicketFile(path, session, &error)) << error.toStdString();
    EXPECT_EQ(session.printSettings().value("a")->numberType(), NumberType::SInt32);
    const PropertyValue* b = session.printSettings().value("b");
    EXPECT_EQ(b->find("n")->numberType(), NumberType::CFIndex);
    EXPECT_EQ(b->find("r")->numberType(), NumberType::Float64);
}

TEST(TicketFile, BadFilesAreRefusedAndTheSessionKept)
{
    QTemporaryDir dir;
    PrintSession session;
    session.printSettings().setItem(kPanelClient, "keep", PropertyValue("me"));
    // An item "a" whose entry ends with the given keys.
    const auto item = [](const char* rest) {
        return QByteArray(kTicketFileStart) + "<key>a</key><dict>" + rest + "</dict>" +
               kTicketFileEnd;
    };
    const std::pair<const char*, QByteArray> rows[] = {
        {"not xml", "garbage"},
        {"not a ticket file", "<plist><dict><key>x</key><string>y</string></dict></plist>"},
        {"item without value", item("<key>Client</key><string>Q</string>")},
        {"fraction typed SInt32",
         item("<key>Value</key><real>2.5</real><key>NumberType</key><integer>3</integer>")},
        {"unknown type code",
         item("<key>Value</key><integer>2</integer><key>NumberType</key><integer>99</integer>")},
        {"nested value beyond SInt32",
         item("<key>Value</key><dict><key>n</key><integer>5000000000</integer></dict>"
              "<key>NumberTypes</key><dict><key>n</key><string>SInt32</string></dict>")},
        {"unknown type name", item("<key>Value</key><array><integer>1</integer></array>"
                                   "<key>NumberTypes</key><array><string>UInt9</string></array>")},
        {"types for a missing entry",
         item("<key>Value</key><dict/>"
              "<key>NumberTypes</key><dict><key>n</key><string>Int</string></dict>")},
        {"types for a string",
         item("<key>Value</key><string>x</string><key>NumberTypes</key><string>Int</string>")},
        {"array of another length",
         item("<key>Value</key><array/><key>NumberTypes</key><array><dict/></array>")},
    };
    for (const auto& [what, bytes] : rows) {
        const QString path = dir.filePath("bad.plist");
        writeAll(path, bytes);
        QString error;
        EXPECT_FALSE(loadTicketFile(path, session, &error)) << what;
        EXPECT_TRUE(error.contains("bad.plist")) << error.toStdString();
        EXPECT_EQ(session.printSettings().string("keep"), "me") << what;
    }
    QString error;
    EXPECT_FALSE(loadTicketFile(dir.filePath("missing.plist"), session, &error));
    EXPECT_TRUE(error.contains("cannot read"));
    EXPECT_FALSE(loadTicketFile("/dev/zero", session, &error));
    EXPECT_TRUE(error.contains("larger than")) << error.toStdString();
}
