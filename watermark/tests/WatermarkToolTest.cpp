#include "watermark/tests/WatermarkTestSupport.h"

#include <QProcess>
#include <QProcessEnvironment>

using namespace orvan;
using namespace orvan::test;

namespace {

class WatermarkToolTest : public WatermarkFileTest
{
protected:
    struct Run
    {
        int exitCode = -1;
        QString out, err;
    };
    Run run(const QStringList& arguments) const
    {
        QProcess tool;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("ORVAN_SHARED_DATA_DIR", m_dir.path());
        tool.setProcessEnvironment(environment);
        tool.start(ORVAN_BINARY_DIR "/bin/orvan-watermark", arguments);
        tool.waitForFinished(30000);
        return {tool.exitCode(), QString::fromUtf8(tool.readAllStandardOutput()),
                QString::fromUtf8(tool.readAllStandardError())};
    }
};

} // namespace

TEST_F(WatermarkToolTest, CommandsReadTheSameFile)
{
    EXPECT_EQ(run({"list"}).exitCode, 1); // no file yet
    saveWatermarkData(kWatermarkFile, textRecord("Draft"));
    saveWatermarkList(kWatermarkFile, {"Draft", "Copy"});

    EXPECT_EQ(run({"list"}).out, "Draft\nCopy\n");
    const Run shown = run({"show", "Draft"});
    EXPECT_TRUE(shown.out.contains("fontName: ArialMT\n")) << shown.out.toStdString();
    EXPECT_EQ(run({"show", "Copy"}).exitCode, 1);

    struct Page
    {
        const char* name;
        QSize points;
    };
    for (const Page& page : {Page{"letter", {612, 792}}, Page{"a4", {595, 842}}}) {
        ASSERT_EQ(run({"render", "Draft", "-o", path("d.pdf"), "--page", page.name}).exitCode, 0);
        QFile pdf(path("d.pdf"));
        ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
        const QImage image = renderPdf(pdf.readAll(), 1.0);
        EXPECT_EQ(image.size(), page.points) << page.name;
        EXPECT_FALSE(inkBox(image).isEmpty());
    }

    const Run font = run({"font", "Draft", "-o", path("d.t42")});
    ASSERT_EQ(font.exitCode, 0) << font.err.toStdString();
    EXPECT_EQ(font.out, "QV-ArialMT-QV\n");
    QByteArray stored;
    loadFontData(kWatermarkFile, "QV-ArialMT-QV", stored);
    QFile written(path("d.t42"));
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll(), stored);
}

TEST_F(WatermarkToolTest, BadUsageExitsWithTwo)
{
    const QStringList cases[] = {
        {},
        {"paint"},
        {"show"},
        {"list", "Draft"},
        {"render", "Draft"},
        {"render", "Draft", "-o", "x.pdf", "--page", "legal"},
        {"show", "Draft", "-o", "x"},
        {"font", "Draft", "-o"},
    };
    for (const QStringList& arguments : cases) {
        const Run result = run(arguments);
        EXPECT_EQ(result.exitCode, 2) << arguments.join(' ').toStdString();
        EXPECT_TRUE(result.err.contains("Usage:"));
    }
}
