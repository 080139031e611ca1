#include "shared/settings/SettingsFile.h"

#include "base/FileLock.h"
#include "base/FilePlace.h"
#include "base/FileReplacement.h"
#include "shared/settings/SettingsDocument.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace ORVTListview {
namespace {

// No arrangement comes near it; something else has taken the file's place.
constexpr qint64 largestFile = 64LL * 1024 * 1024;

class DocumentView final : public SettingsView
{
public:
    explicit DocumentView(SettingsDocument document)
        : m_document(std::move(document))
    {
    }

    std::optional<QString> value(const SettingKey &key) const override
    {
        return m_document.value(key);
    }

private:
    SettingsDocument m_document;
};

struct Loaded
{
    enum class State { Absent, Whole, Damaged, NoFile };

    State state = State::Absent;
    SettingsDocument document = {};
};

std::optional<QByteArray> contentOf(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestFile)
        return std::nullopt;
    QByteArray content = file.readAll();
    if (file.error() != QFile::NoError || content.size() > largestFile)
        return std::nullopt;
    return content;
}

Loaded load(const QString &fileName)
{
    const QFileInfo info(fileName); // a link leads nowhere but in a circle
    if (!info.isFile()) { // reading could wait for ever
        const bool isThere = info.exists() || info.isSymLink();
        return {isThere ? Loaded::State::NoFile : Loaded::State::Absent};
    }
    const std::optional<QByteArray> content = contentOf(fileName);
    std::optional<SettingsDocument> document;
    if (content)
        document = SettingsDocument::fromBytes(*content);
    if (!document)
        return {Loaded::State::Damaged};
    return {Loaded::State::Whole, *std::move(document)};
}

// Replacing a file needs no right to write it, but somebody who takes that right
// away means it.
bool mayReplace(const QString &fileName)
{
    const QFileInfo info(fileName);
    return !info.exists() || info.isWritable() || !info.isReadable();
}

bool keepBeside(const QString &fileName)
{
    for (int i = 1;; ++i) {
        const QString name = fileName + u".damaged-"_s + QString::number(i);
        const QFileInfo info(name);
        if (!info.exists() && !info.isSymLink())
            return QFile::rename(fileName, name);
    }
}

bool replace(const QString &fileName, const Loaded &loaded)
{
    FileReplacement replacement(fileName, fileName + u".new"_s);
    return replacement.write(loaded.document.toBytes()) &&
           (loaded.state != Loaded::State::Damaged || keepBeside(fileName)) && replacement.commit();
}

} // namespace

SettingsFile::SettingsFile(const QString &fileName, std::chrono::milliseconds patience)
    : m_fileName(QFileInfo(fileName).absoluteFilePath())
    , m_patience(patience)
{
}

std::unique_ptr<const SettingsView> SettingsFile::view() const
{
    return std::make_unique<DocumentView>(load(behindLinks(m_fileName)).document);
}

bool SettingsFile::write(const SettingChanges &changes)
{
    const QString fileName = behindLinks(m_fileName);
    Loaded loaded = load(fileName);
    if (!loaded.document.apply(changes))
        return true;
    if (loaded.state == Loaded::State::NoFile || !mayReplace(fileName) ||
        !QDir().mkpath(QFileInfo(fileName).path()))
        return false;
    const FileLock lock(fileName + u".lock"_s, m_patience);
    if (!lock.isHeld())
        return false;
    // Once more, since others may have written while this one waited.
    loaded = load(fileName);
    return !loaded.document.apply(changes) || replace(fileName, loaded);
}

bool SettingsFile::isOneWith(const SettingsPlace &other) const
{
    const auto *file = dynamic_cast<const SettingsFile *>(&other);
    return file && isOneFile(m_fileName, file->m_fileName);
}

} // namespace ORVTListview
