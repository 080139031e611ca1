// Any Qt warning fails the core test that was running when it came.

#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <gtest/gtest.h>

namespace {

void failOnWarning(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtDebugMsg || type == QtInfoMsg)
        return;
    ADD_FAILURE() << "unexpected log message: " << message.toStdString();
}

class LogGuard final : public testing::Environment
{
public:
    void SetUp() override { qInstallMessageHandler(failOnWarning); }
    void TearDown() override { qInstallMessageHandler(nullptr); }
};

[[maybe_unused]] testing::Environment *const guard =
    testing::AddGlobalTestEnvironment(new LogGuard);

} // namespace
