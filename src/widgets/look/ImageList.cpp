#include <ORVTListview/ImageList.h>

#include "widgets/look/PictureEngine.h"
#include <ORVTListview/Error.h>

#include <QtCore/QFileInfo>
#include <QtSvg/QSvgRenderer>

#include <memory>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void refuse(const QString &reason)
{
    throw Error(InvalidCall, u"ImageList.Add"_s, reason);
}

std::shared_ptr<QSvgRenderer> loaded(const QString &file)
{
    auto drawing = std::make_shared<QSvgRenderer>();
    // Asked first, because Qt logs a warning for a file it cannot open.
    if (!QFileInfo(file).isFile() || !drawing->load(file))
        refuse(u"Not an SVG file: "_s + file);
    return drawing;
}

// Resources never change, so a drawing of one that some list holds already is
// shared: every component has a list with the same pictures.
std::shared_ptr<QSvgRenderer> drawingOf(const QString &file)
{
    if (!file.startsWith(u":/"))
        return loaded(file);
    thread_local QHash<QString, std::weak_ptr<QSvgRenderer>> held;
    std::weak_ptr<QSvgRenderer> &place = held[file];
    std::shared_ptr<QSvgRenderer> drawing = place.lock();
    if (!drawing)
        place = drawing = loaded(file);
    return drawing;
}

} // namespace

ImageList::ImageList() = default;
ImageList::~ImageList() = default;

void ImageList::Add(const QString &Key, qint32 Index, const QString &SvgFile, Look Drawn)
{
    refuseUnlessFree(Key, Index);
    const QIcon icon(new PictureEngine(SvgFile, drawingOf(SvgFile), Drawn == Look::Pressed));
    m_entries[Index] = {Key, icon};
    m_indexes.insert(Key, Index);
}

void ImageList::refuseUnlessFree(const QString &key, qint32 index) const
{
    if (key.isEmpty())
        refuse(u"A picture needs a key."_s);
    if (Contains(key))
        refuse(u"The key is in use: "_s + key);
    if (index < 1)
        refuse(u"An index is at least 1, not "_s + QString::number(index));
    if (Contains(index))
        refuse(u"The index is in use: "_s + QString::number(index));
}

qint32 ImageList::Count() const
{
    return static_cast<qint32>(m_entries.size());
}

QStringList ImageList::Keys() const
{
    QStringList keys;
    for (const auto &[index, entry] : m_entries)
        keys << entry.key;
    return keys;
}

bool ImageList::Contains(const QString &Key) const
{
    return m_indexes.contains(Key);
}

bool ImageList::Contains(qint32 Index) const
{
    return m_entries.contains(Index);
}

QIcon ImageList::Picture(const QString &Key) const
{
    return Picture(IndexOf(Key));
}

QIcon ImageList::Picture(qint32 Index) const
{
    const auto entry = m_entries.find(Index);
    return entry == m_entries.end() ? QIcon() : entry->second.icon;
}

QString ImageList::KeyOf(qint32 Index) const
{
    const auto entry = m_entries.find(Index);
    return entry == m_entries.end() ? QString() : entry->second.key;
}

qint32 ImageList::IndexOf(const QString &Key) const
{
    return m_indexes.value(Key, 0);
}

} // namespace ORVTListview
