// Shared fixtures of the printer description tests: the sample printer's PPD,
// the small test PPDs, variants of the sample with other installed hardware,
// and guards that leave the process-wide state as they found it.
#pragma once

#include "printerdesc/InstallableOptions.h"
#include "printerdesc/PPDAccess.h"

#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace orvan::testing {

inline QString SamplePpdPath()
{
    return QStringLiteral(ORVAN_SOURCE_DIR "/resources/bundle/ppd/Orvan-Meridian-5000.ppd");
}

inline QString TestPpdPath(const char* name)
{
    return QStringLiteral(ORVAN_SOURCE_DIR "/printerdesc/tests/ppd/") + QString::fromUtf8(name);
}

// A copy of the sample PPD in `folder` with some "*Default<Option>: <choice>"
// lines changed, e.g. {{"Option8", "False"}}.
inline QString WriteSampleVariant(const QTemporaryDir& folder,
                                  const std::vector<std::pair<QByteArray, QByteArray>>& defaults)
{
    QFile sample(SamplePpdPath());
    EXPECT_TRUE(sample.open(QIODevice::ReadOnly));
    QByteArray text = sample.readAll();
    for (const auto& [option, choice] : defaults) {
        const QByteArray key = "*Default" + option + ": ";
        const qsizetype at = text.indexOf("\n" + key);
        EXPECT_GE(at, 0) << option.constData();
        const qsizetype end = text.indexOf('\n', at + 1);
        text.replace(at + 1, end - at - 1, key + choice);
    }
    const QString path = folder.filePath(QStringLiteral("variant.ppd"));
    QFile out(path);
    EXPECT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(text);
    return path;
}

inline PpdFilePtr OpenOrFail(const QString& path)
{
    QString error;
    PpdFilePtr ppd = OpenPPDFile(path, &error);
    EXPECT_TRUE(ppd) << qPrintable(path) << ": " << qPrintable(error);
    return ppd;
}

// Loads a PPD's installable options with the Orvan feature table for the
// guard's lifetime.
class InstalledOptionsGuard
{
public:
    explicit InstalledOptionsGuard(const QString& ppdPath) : m_ppd(OpenOrFail(ppdPath))
    {
        UnloadInstallableOptions();
        LoadInstallableOptions(m_ppd.get(), _InstalledFeatures);
    }
    InstalledOptionsGuard() { UnloadInstallableOptions(); }
    ~InstalledOptionsGuard() { UnloadInstallableOptions(); }
    InstalledOptionsGuard(const InstalledOptionsGuard&) = delete;
    InstalledOptionsGuard& operator=(const InstalledOptionsGuard&) = delete;

    ppd_file_t* ppd() const { return m_ppd.get(); }

private:
    PpdFilePtr m_ppd;
};

} // namespace orvan::testing
