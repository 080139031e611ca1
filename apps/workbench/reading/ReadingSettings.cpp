#include "workbench/reading/ReadingSettings.h"

#include <QtCore/QSettings>

#include <algorithm>
#include <array>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

constexpr std::array failures{"none"_L1, "not reachable"_L1, "refuses"_L1, "breaks"_L1};
constexpr std::array mistakes{"none"_L1, "text for number"_L1, "too few"_L1, "unknown point"_L1};

template <typename Choice>
void readChoice(Choice &choice, const std::array<QLatin1StringView, 4> &names, const QString &name)
{
    const auto *const found = std::find(names.begin(), names.end(), name);
    if (found != names.end())
        choice = static_cast<Choice>(found - names.begin());
}

void readNumber(int &number, const QVariant &stored, int least, int most)
{
    bool isNumber = false;
    const int read = stored.toInt(&isNumber);
    if (isNumber && read >= least && read <= most)
        number = read;
}

} // namespace

void ReadingSettings::read(const QSettings &store)
{
    isCyclic = store.value("reading/cyclic"_L1, isCyclic).toBool();
    readNumber(seconds, store.value("reading/seconds"_L1), 1, mostSeconds);
    readNumber(simulated.delay, store.value("simulation/delay"_L1), 0, mostDelay);
    readChoice(simulated.failure, failures, store.value("simulation/failure"_L1).toString());
    readChoice(simulated.mistake, mistakes, store.value("simulation/mistake"_L1).toString());
}

void ReadingSettings::write(QSettings &store) const
{
    store.setValue("reading/cyclic"_L1, isCyclic);
    store.setValue("reading/seconds"_L1, seconds);
    store.setValue("simulation/delay"_L1, simulated.delay);
    store.setValue("simulation/failure"_L1, QString(failures.at(simulated.failure)));
    store.setValue("simulation/mistake"_L1, QString(mistakes.at(simulated.mistake)));
}

} // namespace ORVTListview
