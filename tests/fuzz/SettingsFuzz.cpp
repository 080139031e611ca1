// Settings files of any bytes, and changes to them: what is written is read back, in
// memory and from the disk, and nothing else changes.

#include "fuzz/FuzzBytes.h"

#include "shared/settings/SettingsDocument.h"
#include "shared/settings/SettingsFile.h"
#include "shared/settings/SettingsLine.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <algorithm>

using namespace ORVTListview;
using namespace ORVTListview::Fuzzing;

namespace {

const SettingKey other{QStringLiteral("Other"), QStringLiteral("Key")};

void checkLine(const QString &name, const QString &value)
{
    demand(readSettingsLine(settingText(name, value)) ==
               SettingsLine{SettingsLine::Kind::Setting, name, value},
           "a setting's line is read back");
    demand(readSettingsLine(sectionText(name)) ==
               SettingsLine{SettingsLine::Kind::Section, name, {}},
           "a section's line is read back");
}

SettingChanges changesFrom(FuzzBytes &bytes)
{
    SettingChanges changes;
    for (int i = bytes.below(5); i > 0; --i) {
        const SettingKey key{bytes.text(), bytes.text()};
        const bool isRemoved = bytes.below(4) == 0;
        changes.append({key, isRemoved ? std::nullopt : std::optional(bytes.text())});
        checkLine(key.name, changes.constLast().value.value_or(QString()));
    }
    return changes;
}

bool isChangedAgain(const SettingChanges &changes, qsizetype index)
{
    return std::any_of(changes.begin() + index + 1, changes.end(),
                       [&](const SettingChange &later) { return later.key == changes[index].key; });
}

// What each setting is after the changes.
template <typename View>
void checkChanged(const View &view, const SettingChanges &changes)
{
    for (qsizetype i = 0; i < changes.size(); ++i) {
        demand(isChangedAgain(changes, i) || view.value(changes[i].key) == changes[i].value,
               "a setting is what was set");
    }
}

// Made a second time, changes tell of themselves only where one takes back another.
void checkTold(SettingsDocument document, const SettingChanges &changes)
{
    const QByteArray before = document.toBytes();
    bool isOneAKey = true;
    for (qsizetype i = 0; i < changes.size(); ++i)
        isOneAKey = isOneAKey && !isChangedAgain(changes, i);
    const bool isTold = document.apply(changes);
    demand(!(isTold && isOneAKey), "changes that are there already change nothing");
    demand(isTold || document.toBytes() == before, "changes are told");
}

void checkDocument(SettingsDocument document, const SettingChanges &changes)
{
    const auto untouched = document.value(other);
    const QByteArray written = document.toBytes();
    const auto again = SettingsDocument::fromBytes(written);
    demand(again && again->toBytes() == written, "a document is written the same again");
    demand(again->value(other) == untouched, "and says the same");

    document.apply(changes);
    checkChanged(document, changes);
    const auto read = SettingsDocument::fromBytes(document.toBytes());
    demand(read.has_value(), "what is written can be read");
    checkChanged(*read, changes);
    checkTold(*read, changes);
}

QString fileName()
{
    static const QTemporaryDir folder((QDir(QStringLiteral("/dev/shm")).exists()
                                           ? QStringLiteral("/dev/shm")
                                           : QDir::tempPath()) +
                                      QStringLiteral("/settings-fuzz-XXXXXX"));
    return folder.filePath(QStringLiteral("settings"));
}

void checkFile(const QByteArray &content, const SettingChanges &changes)
{
    const QDir folder = QFileInfo(fileName()).dir();
    for (const QString &name : folder.entryList(QDir::Files))
        QFile::remove(folder.filePath(name));
    QFile raw(fileName());
    demand(raw.open(QIODevice::WriteOnly) && raw.write(content) == content.size(), "(the disk)");
    raw.close();
    SettingsFile file(fileName());
    const auto document = SettingsDocument::fromBytes(content);
    const auto former = file.view()->value(other);
    demand(former == (document ? document->value(other) : std::nullopt),
           "the file is the document");
    demand(file.write(changes), "the file takes changes");
    checkChanged(*file.view(), changes);
    const bool isKept = QFile::exists(fileName() + QStringLiteral(".damaged-1"));
    demand(document || isKept || changes.isEmpty() || file.view()->value(other) == std::nullopt,
           "a damaged file holds nothing");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzBytes bytes(data, size);
    const bool isOnDisk = bytes.below(16) == 1;
    const SettingChanges changes = changesFrom(bytes);
    const QByteArray content = bytes.rest();
    if (isOnDisk)
        checkFile(content, changes);
    else
        checkDocument(SettingsDocument::fromBytes(content).value_or(SettingsDocument()), changes);
    return 0;
}
