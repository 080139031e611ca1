#include <ORVTListview/ImageList.h>

#include "widgets/look/CompiledDrawings.h"
#include "widgets/look/FileDrawing.h"
#include "widgets/look/PictureEngine.h"
#include <ORVTListview/Error.h>

#include <QtCore/QHash>

#include <map>
#include <memory>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void refuse(const QString &reason)
{
    throw Error(InvalidCall, u"ImageList.Add"_s, reason);
}

struct Found
{
    QString name; // of what is drawn
    std::shared_ptr<const Drawing> drawing;
};

Found loaded(const QString &file)
{
    const std::shared_ptr<const FileDrawing> drawing = FileDrawing::of(file);
    if (!drawing)
        refuse(u"Not a picture that can be read: "_s + file);
    return {file + u'|' + QString::number(drawing->fingerprint()), drawing};
}

Found drawingOf(const QString &file)
{
    if (const std::shared_ptr<const Drawing> ready = CompiledDrawings::of(file))
        return {file, ready};
    return loaded(file);
}

} // namespace

struct ImageList::Private
{
    struct Entry
    {
        QString key;
        QIcon icon;
    };

    std::map<qint32, Entry> entries;
    QHash<QString, qint32> indexes;
};

ImageList::ImageList()
    : d(std::make_unique<Private>())
{
}

ImageList::~ImageList() = default;

void ImageList::Add(const QString &Key, qint32 Index, const QString &SvgFile, Look Drawn)
{
    refuseUnlessFree(Key, Index);
    const Found found = drawingOf(SvgFile);
    const QIcon icon(new PictureEngine(found.name, found.drawing, Drawn == Look::Pressed));
    d->entries[Index] = {Key, icon};
    d->indexes.insert(Key, Index);
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
    return static_cast<qint32>(d->entries.size());
}

QStringList ImageList::Keys() const
{
    QStringList keys;
    for (const auto &[index, entry] : d->entries)
        keys << entry.key;
    return keys;
}

bool ImageList::Contains(const QString &Key) const
{
    return d->indexes.contains(Key);
}

bool ImageList::Contains(qint32 Index) const
{
    return d->entries.contains(Index);
}

QIcon ImageList::Picture(const QString &Key) const
{
    return Picture(IndexOf(Key));
}

QIcon ImageList::Picture(qint32 Index) const
{
    const auto entry = d->entries.find(Index);
    return entry == d->entries.end() ? QIcon() : entry->second.icon;
}

QString ImageList::KeyOf(qint32 Index) const
{
    const auto entry = d->entries.find(Index);
    return entry == d->entries.end() ? QString() : entry->second.key;
}

qint32 ImageList::IndexOf(const QString &Key) const
{
    return d->indexes.value(Key, 0);
}

} // namespace ORVTListview
