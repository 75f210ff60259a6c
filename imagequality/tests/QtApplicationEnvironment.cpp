// Widget tests need one QApplication for the whole program; GoogleTest sets
// this environment up before the first test and tears it down after the last.
#include <QApplication>

#include <gtest/gtest.h>

#include <memory>

namespace {

class QtApplicationEnvironment : public ::testing::Environment
{
public:
    void SetUp() override { m_application = std::make_unique<QApplication>(m_argc, m_argv); }
    void TearDown() override { m_application.reset(); }

private:
    int m_argc = 1;
    char m_name[16] = "imagequality";
    char* m_argv[2] = {m_name, nullptr};
    std::unique_ptr<QApplication> m_application;
};

[[maybe_unused]] ::testing::Environment* const environment =
    ::testing::AddGlobalTestEnvironment(new QtApplicationEnvironment);

} // namespace
