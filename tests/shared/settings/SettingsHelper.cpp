// Another process for the tests of the settings store. Carries out the commands
// given as arguments, in their order; prints what is read, a line each.
//
//   file PATH                 keep the settings in that file
//   write APP NAME VALUE
//   read APP NAME
//   arrange N                 save the number N for all types, as one transaction
//   arrange-forever           1, 2, 3 ...; prints each number once it is saved
//   write-many APP PREFIX N   the settings PREFIX0 to PREFIX(N-1), one by one
//   write-long APP NAME N     a value of N letters
//   drop-rights               go on as a user without any, if this one has some
//   mount DIR BYTES           a file system of that size, seen by this process alone
//   fill DIR BYTES            leave that much room on it
//   limit BYTES               no file may grow beyond
//   list DIR                  print the names there
//   where                     print the machine's file and the user's

#include "shared/points/DisplayNames.h"
#include "shared/settings/SettingsLocations.h"
#include "support/DiskLimits.h"
#include <ORVTListview/SettingsStore.h>

#include <QtCore/QDir>
#include <QtCore/QStringList>

#include <cstdio>
#include <functional>
#include <map>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

void print(const QString &text)
{
    std::puts(text.toUtf8().constData());
    std::fflush(stdout);
}

void arrange(qint64 number)
{
    SettingsTransaction transaction;
    for (qint32 type = lowestType; type <= highestType; ++type)
        WriteSetting(u"Quillbox"_s, displayName(type), QString::number(number));
    transaction.commit();
}

void arrangeForEver()
{
    for (qint64 number = 1;; ++number) {
        arrange(number);
        print(QString::number(number));
    }
}

void writeMany(const QString &application, const QString &prefix, int count)
{
    for (int i = 0; i < count; ++i)
        WriteSetting(application, prefix + QString::number(i),
                     u"%1 of %2"_s.arg(QString::number(i), prefix));
}

struct Command
{
    int arguments;
    std::function<void(const QStringList &)> run;
};

const std::map<QString, Command> &commands()
{
    static const std::map<QString, Command> all{
        {u"file"_s, {1, [](const QStringList &a) { setSettingsFile(a[0]); }}},
        {u"write"_s, {3, [](const QStringList &a) { WriteSetting(a[0], a[1], a[2]); }}},
        {u"read"_s, {2, [](const QStringList &a) { print(ReadSetting(a[0], a[1])); }}},
        {u"arrange"_s, {1, [](const QStringList &a) { arrange(a[0].toInt()); }}},
        {u"arrange-forever"_s, {0, [](const QStringList &) { arrangeForEver(); }}},
        {u"write-many"_s, {3, [](const QStringList &a) { writeMany(a[0], a[1], a[2].toInt()); }}},
        {u"write-long"_s,
         {3, [](const QStringList &a) { WriteSetting(a[0], a[1], QString(a[2].toInt(), u'x')); }}},
        {u"drop-rights"_s, {0, [](const QStringList &) { DiskLimits::dropRights(); }}},
        {u"mount"_s, {2, [](const QStringList &a) { DiskLimits::mount(a[0], a[1].toLongLong()); }}},
        {u"fill"_s, {2, [](const QStringList &a) { DiskLimits::fill(a[0], a[1].toLongLong()); }}},
        {u"limit"_s, {1, [](const QStringList &a) { DiskLimits::limitFiles(a[0].toLongLong()); }}},
        {u"list"_s,
         {1,
          [](const QStringList &a) {
              print(QDir(a[0]).entryList(QDir::Files | QDir::Hidden, QDir::Name).join(u' '));
          }}},
        {u"where"_s,
         {0,
          [](const QStringList &) {
              print(machineSettingsFile());
              print(userSettingsFile());
          }}},
    };
    return all;
}

} // namespace

int main(int argc, char **argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    while (!words.isEmpty()) {
        const auto command = commands().find(words.takeFirst());
        if (command == commands().end() || words.size() < command->second.arguments)
            return 2;
        command->second.run(words.first(command->second.arguments));
        words = words.sliced(command->second.arguments);
    }
    return 0;
}
