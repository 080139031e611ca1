#include "shared/texts/TextRoutine.h"

#include <QtCore/QLoggingCategory>

#include <exception>

namespace ORVTListview {
namespace {

Q_LOGGING_CATEGORY(textsLog, "orvtlistview.texts", QtInfoMsg)

} // namespace

bool runTextRoutine(QLatin1StringView label, const std::function<void()> &routine)
{
    try {
        routine();
        return true;
    } catch (const std::exception &failure) {
        qCDebug(textsLog).noquote() << label << failure.what();
    } catch (...) {
        qCDebug(textsLog).noquote() << label << "unknown failure";
    }
    return false;
}

} // namespace ORVTListview
