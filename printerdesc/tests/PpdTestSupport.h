// Shared fixtures of the printer description tests: the sample printer's PPD,
// the small test PPDs, variants of the sample with other installed hardware,
// and a guard that leaves the installed options as it found them.
#pragma once

#include "tests/support/TestData.h"

#include "printerdesc/InstallableOptions.h"
#include "printerdesc/PPDAccess.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <tuple>

namespace orvan::testing {

inline QString TestPpdPath(const char* name)
{
    return ORVAN_SOURCE_DIR "/printerdesc/tests/ppd/" + QString::fromUtf8(name);
}

// A copy of the sample PPD in `folder` with some "*Default<Option>: <choice>"
// lines changed, e.g. {{"Option8", "False"}}.
inline QString WriteSampleVariant(const QTemporaryDir& folder,
                                  const std::vector<std::pair<QByteArray, QByteArray>>& defaults)
{
    QFile sample(kSamplePpd), out(folder.filePath("variant.ppd"));
    EXPECT_TRUE(sample.open(QIODevice::ReadOnly) && out.open(QIODevice::WriteOnly));
    QByteArray text = sample.readAll();
    for (const auto& [option, choice] : defaults) {
        const qsizetype at = text.indexOf("\n*Default" + option + ": ") + 1;
        EXPECT_GT(at, 0) << option.constData();
        text.replace(at, text.indexOf('\n', at) - at, "*Default" + option + ": " + choice);
    }
    out.write(text);
    return out.fileName();
}

inline PpdFilePtr OpenOrFail(const QString& path)
{
    QString error;
    PpdFilePtr ppd = OpenPPDFile(path, &error);
    EXPECT_TRUE(ppd) << qPrintable(path) << ": " << qPrintable(error);
    return ppd;
}

// For its lifetime, the installable options of the PPD at `ppdPath` with the
// Orvan feature table, or none loaded when the path is empty.
class InstalledOptionsGuard
{
public:
    explicit InstalledOptionsGuard(const QString& ppdPath = {})
    {
        UnloadInstallableOptions();
        if (!ppdPath.isEmpty())
            LoadInstallableOptions(OpenOrFail(ppdPath).get(), _InstalledFeatures);
    }
    ~InstalledOptionsGuard() { UnloadInstallableOptions(); }
    InstalledOptionsGuard(const InstalledOptionsGuard&) = delete;
    InstalledOptionsGuard& operator=(const InstalledOptionsGuard&) = delete;
};

} // namespace orvan::testing
