#include "project/RecoverySlot.h"

#include "project/TextFile.h"

#include <ORVTListview/Error.h>

#include <QtCore/QCryptographicHash>
#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr int mostSlots = 50;

QString dataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + u"/recovery"_s;
}

// Locks need a folder that can be written.
QString lockFolder()
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
    const QFileInfo info(projectFile);
    const QString tail =
        number == 1 ? u".recovery.txt"_s : u".recovery-%1.txt"_s.arg(QString::number(number));
    const QString sign = signOf(projectFile);
    m_places = {info.path() + u'/' + info.fileName() + tail,
                dataFolder() + u'/' + info.fileName() + u'.' + sign + tail};
    m_lock = std::make_unique<FileLock>(lockFolder() + u'/' + sign + u'.' +
                                            QString::number(number) + u".lock"_s,
                                        std::chrono::milliseconds(0));
    find();
}

// Of two that were written at different times the later one counts.
void RecoverySlot::find()
{
    m_fileName.clear();
    for (const QString &place : std::as_const(m_places)) {
        const QFileInfo info(place);
        if (info.isFile() &&
            (m_fileName.isEmpty() || info.lastModified() > QFileInfo(m_fileName).lastModified()))
            m_fileName = place;
    }
}

RecoverySlots RecoverySlot::slotsOf(const QString &projectFile)
{
    RecoverySlots result;
    for (int number = 1; number <= mostSlots; ++number) {
        RecoverySlot slot(projectFile, number);
        if (!slot.isHeld())
            result.isOpenElsewhere = true;
        else if (slot.hasFile())
            result.left.push_back(std::move(slot));
        else if (!result.own)
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

void RecoverySlot::write(const QByteArray &text)
{
    for (const QString &place : std::as_const(m_places)) {
        try {
            writeFile(place, text);
            m_fileName = place;
            m_written = QFileInfo(place).lastModified();
            break;
        } catch (const Error &) {
            if (place == m_places.constLast())
                throw;
        }
    }
    for (const QString &place : std::as_const(m_places)) {
        if (place != m_fileName)
            QFile::remove(place); // older
    }
}

bool RecoverySlot::isAsWritten() const
{
    const QFileInfo file(m_fileName);
    return file.isFile() && file.lastModified() == m_written;
}

void RecoverySlot::remove()
{
    for (const QString &place : std::as_const(m_places))
        QFile::remove(place);
    m_fileName.clear();
}

} // namespace ORVTListview
