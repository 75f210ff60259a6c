#include "settings/PrivateBundle.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace orvan;

TEST(PrivateBundle, LoadsTheLibraryOfABundleInPlugInsOnly)
{
    QTemporaryDir host;
    const auto makeBundle = [&host](const QString& name, const QByteArray& executable,
                                    bool withLibrary) {
        const QString folder = host.filePath("PlugIns/" + name);
        ASSERT_TRUE(QDir().mkpath(folder));
        QFile info(folder + "/Info.plist");
        ASSERT_TRUE(info.open(QIODevice::WriteOnly));
        info.write("<plist><dict><key>CFBundleExecutable</key><string>" + executable +
                   "</string></dict></plist>");
        if (withLibrary)
            ASSERT_TRUE(QFile::copy(ORVAN_TEST_PRIVATE_LIBRARY, folder + "/helper.so"));
    };
    makeBundle("Helper.plugin", "helper.so", true);
    makeBundle("NoLibrary.plugin", "helper.so", false);
    makeBundle("Elsewhere.plugin", "../Helper.plugin/helper.so", false);
    QFile broken(host.filePath("PlugIns/NoLibrary.plugin/helper.so"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write("not a library"));
    broken.close();
    const Bundle bundle(host.path());

    std::unique_ptr<PrivateBundle> loaded;
    ASSERT_TRUE(LoadPrivateBundle(&bundle, "Helper.plugin", &loaded));
    ASSERT_TRUE(loaded);
    const auto answer = reinterpret_cast<int (*)()>(loaded->function("OrvanPrivateBundleAnswer"));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer(), 42);
    EXPECT_EQ(loaded->function("NoSuchFunction"), nullptr);

    for (const char* name :
         {"Missing.plugin", "NoLibrary.plugin", "Elsewhere.plugin", "../PlugIns/Helper.plugin"}) {
        testing::internal::CaptureStderr();
        EXPECT_FALSE(LoadPrivateBundle(&bundle, name, &loaded)) << name;
        testing::internal::GetCapturedStderr();
        EXPECT_EQ(loaded, nullptr) << name;
    }
    EXPECT_FALSE(LoadPrivateBundle(nullptr, "Helper.plugin", &loaded));
}
