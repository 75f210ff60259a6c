// One application object for the whole test program: QProcess and the
// plug-in's Qt objects want one. Widget tests get a QApplication on the
// offscreen platform, the others a QCoreApplication.
#ifdef ORVAN_TEST_APPLICATION_CORE
#include <QCoreApplication>
using TestApplication = QCoreApplication;
#else
#include <QApplication>
using TestApplication = QApplication;
#endif

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace {

class TestApplicationEnvironment : public ::testing::Environment
{
public:
    void SetUp() override
    {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        // Files the panels share machine-wide (the watermark file) go to a
        // folder of this program, and so do those of the processes it starts.
        if (qEnvironmentVariableIsEmpty("ORVAN_SHARED_DATA_DIR") && m_sharedData.isValid())
            qputenv("ORVAN_SHARED_DATA_DIR", m_sharedData.path().toUtf8());
        m_application = std::make_unique<TestApplication>(m_argc, m_argv);
    }
    void TearDown() override { m_application.reset(); }

private:
    int m_argc = 1;
    char m_name[16] = "orvan_tests";
    char* m_argv[2] = {m_name, nullptr};
    QTemporaryDir m_sharedData;
    std::unique_ptr<TestApplication> m_application;
};

[[maybe_unused]] ::testing::Environment* const environment =
    ::testing::AddGlobalTestEnvironment(new TestApplicationEnvironment);

} // namespace
