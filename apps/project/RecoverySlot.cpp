#include "project/RecoverySlot.h"

#include "base/FilePlace.h"
#include "project/ProjectError.h"
#include "project/ProjectTexts.h"
#include "project/TextFile.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

#include <algorithm>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostSlots = 50;

QString dataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + u"/recovery"_s;
}

// The user's own locks need a folder that can be written.
QString ownLockFolder()
{
    const QString folder = dataFolder();
    return QDir().mkpath(folder) && QFileInfo(folder).isWritable() ? folder : QDir::tempPath();
}

// Short, and the same for one file however it is reached.
QString signOf(const QString &fileName)
{
    const QFileInfo info(fileName);
    const QString folder = QFileInfo(info.path()).canonicalFilePath();
    const QString whole =
        (folder.isEmpty() ? info.absolutePath() : folder) + u'/' + info.fileName();
    return QString::fromLatin1(
        QCryptographicHash::hash(whole.toUtf8(), QCryptographicHash::Sha1).toHex().first(12));
}

} // namespace

RecoverySlot::RecoverySlot(const QString &projectFile, int number)
{
    const QFileInfo info(behindLinks(projectFile));
    const QString name = info.fileName();
    const QString tail =
        number == 1 ? u".recovery"_s : u".recovery-%1"_s.arg(QString::number(number));
    const QString sign = signOf(info.filePath());
    m_places.emplace_back(info.path() + u'/' + name + tail + u".txt"_s,
                          info.path() + u"/."_s + name + tail + u".lock"_s);
    m_places.emplace_back(dataFolder() + u'/' + name + u'.' + sign + tail + u".txt"_s,
                          ownLockFolder() + u'/' + sign + u'.' + QString::number(number) +
                              u".lock"_s);
    find();
}

// Of two that were written at different times the later one counts.
void RecoverySlot::find()
{
    m_fileName.clear();
    for (const RecoveryPlace &place : m_places) {
        const QFileInfo info(place.fileName());
        if (info.isFile() &&
            (m_fileName.isEmpty() || info.lastModified() > QFileInfo(m_fileName).lastModified()))
            m_fileName = place.fileName();
    }
}

bool RecoverySlot::isOurs() const
{
    return std::ranges::any_of(m_places, &RecoveryPlace::isOurs);
}

bool RecoverySlot::isOthers() const
{
    return std::ranges::any_of(m_places, &RecoveryPlace::isOthers);
}

RecoverySlots RecoverySlot::slotsOf(const QString &projectFile)
{
    RecoverySlots result;
    for (int number = 1; number <= mostSlots; ++number) {
        RecoverySlot slot(projectFile, number);
        if (slot.isOthers())
            result.isOpenElsewhere = true;
        else if (slot.hasFile())
            result.left.push_back(std::move(slot));
        else if (!result.own && slot.isOurs())
            result.own = std::move(slot);
        if (result.own && number > static_cast<int>(result.left.size()) + 4)
            break;
    }
    std::ranges::stable_sort(result.left, std::greater(), [](const RecoverySlot &slot) {
        return QFileInfo(slot.m_fileName).lastModified();
    });
    return result;
}

bool RecoverySlot::hasFile() const
{
    return !m_fileName.isEmpty();
}

QByteArray RecoverySlot::read() const
{
    try {
        return readFile(m_fileName);
    } catch (const Error &) {
        return {};
    }
}

// A file lies only where its lock tells that we live.
void RecoverySlot::write(const QByteArray &text)
{
    Error fault(FileNotWritable, u"RecoverySlot"_s,
                ProjectTexts::tr("no folder takes a recovery file"));
    const auto takes = [&](RecoveryPlace &place) {
        try {
            if (place.take())
                writeFile(place.fileName(), text);
            return place.isOurs();
        } catch (const Error &error) {
            fault = error;
            return false;
        }
    };
    const auto place = std::ranges::find_if(m_places, takes);
    if (place == m_places.end())
        throw Error(fault);
    m_fileName = place->fileName();
    m_written = QFileInfo(m_fileName).lastModified();
    removeBut(m_fileName); // older
}

void RecoverySlot::removeBut(const QString &fileName)
{
    for (RecoveryPlace &place : m_places) {
        if (place.fileName() != fileName && place.take())
            QFile::remove(place.fileName());
    }
}

bool RecoverySlot::isAsWritten() const
{
    const QFileInfo file(m_fileName);
    return file.isFile() && file.lastModified() == m_written;
}

// What was found where no lock can be goes, too.
void RecoverySlot::remove()
{
    const QString found = std::exchange(m_fileName, {});
    removeBut({});
    if (!found.isEmpty() && !isOthers())
        QFile::remove(found);
}

} // namespace ORVTListview
