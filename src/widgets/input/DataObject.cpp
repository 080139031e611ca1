#include <ORVTListview/DataObject.h>

#include "base/ThreadState.h"
#include "widgets/input/DragData.h"
#include "widgets/input/RichTextNames.h"
#include <ORVTListview/Error.h>

#include <QtCore/QPointer>
#include <QtCore/QUrl>
#include <QtGui/QImage>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

struct FormatEntry
{
    DataObject::KnownFormat number = DataObject::Text;
    QLatin1StringView mimeType;
};

constexpr FormatEntry knownFormats[] = {
    {DataObject::Text, QLatin1StringView("text/plain")},
    {DataObject::Bitmap, QLatin1StringView("application/x-qt-image")},
    {DataObject::Files, QLatin1StringView("text/uri-list")},
    {DataObject::RichText, QLatin1StringView("text/rtf")},
};

// The MIME types that have been given a number, from firstNumber on.
using OtherFormats = QStringList;
constexpr int firstNumber = -16384;

QStringList localPaths(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

QList<QUrl> fileUrls(const QStringList &paths)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    return urls;
}

// The MIME types that a format goes by, the usual one first.
QStringList namesOf(qint16 format)
{
    if (format == DataObject::RichText)
        return richTextNames();
    const QString type = DataObject::MimeType(format);
    return type.isEmpty() ? QStringList() : QStringList(type);
}

// That under which the data have it; empty for none.
QString presentName(const QMimeData &data, qint16 format)
{
    for (const QString &name : namesOf(format)) {
        if (data.hasFormat(name))
            return name;
    }
    return {};
}

// Some programs hand on the end marks of their texts, too.
QString withoutEndMarks(QByteArray text)
{
    while (text.endsWith('\0'))
        text.chop(1);
    return QString::fromUtf8(text);
}

void put(QMimeData &data, const QVariant &value, qint16 format)
{
    switch (format) {
    case DataObject::Text:
        data.setText(value.toString());
        break;
    case DataObject::Bitmap:
        data.setImageData(value);
        break;
    case DataObject::Files:
        data.setUrls(fileUrls(value.toStringList()));
        break;
    case DataObject::RichText:
        for (const QString &name : namesOf(format))
            data.setData(name, value.toString().toUtf8());
        break;
    default:
        data.setData(DataObject::MimeType(format), value.toByteArray());
    }
}

bool fits(const QVariant &value, qint16 format)
{
    switch (format) {
    case DataObject::Bitmap:
        return value.canConvert<QImage>();
    case DataObject::Files:
        return value.canConvert<QStringList>();
    case DataObject::Text:
    case DataObject::RichText:
        return value.canConvert<QString>();
    default:
        return value.canConvert<QByteArray>();
    }
}

} // namespace

struct DataObject::Private
{
    QPointer<QMimeData> data;
    Side side;
};

DataObject::DataObject(QMimeData *data, Side side)
    : d(std::make_unique<Private>(Private{data, side}))
{
}

DataObject::~DataObject() = default;

qint16 DataObject::FormatNumber(const QString &MimeType)
{
    for (const FormatEntry &known : knownFormats) {
        if (MimeType == known.mimeType)
            return known.number;
    }
    if (richTextNames().contains(MimeType))
        return RichText;
    auto &others = threadPart<OtherFormats>();
    if (!others.contains(MimeType))
        others.append(MimeType);
    return static_cast<qint16>(firstNumber + others.indexOf(MimeType));
}

QString DataObject::MimeType(qint16 Format)
{
    for (const FormatEntry &known : knownFormats) {
        if (Format == known.number)
            return known.mimeType;
    }
    return threadPart<OtherFormats>().value(Format - firstNumber);
}

bool DataObject::GetFormat(qint16 Format) const
{
    return d->data && !presentName(*d->data, Format).isEmpty();
}

QVariant DataObject::GetData(qint16 Format) const
{
    if (!GetFormat(Format))
        throw Error(InvalidCall, u"DataObject.GetData"_s,
                    u"There are no data of format %1"_s.arg(Format));
    switch (Format) {
    case Text:
        return d->data->text();
    case Bitmap:
        return d->data->imageData();
    case Files:
        return localPaths(*d->data);
    case RichText:
        return withoutEndMarks(d->data->data(presentName(*d->data, Format)));
    default:
        return d->data->data(MimeType(Format));
    }
}

QMimeData &DataObject::sourceData(const QString &member) const
{
    if (d->side != Side::Source || !d->data)
        throw Error(InvalidCall, member, u"Only the source of a drag can change its data"_s);
    return *d->data;
}

void DataObject::SetData(const QVariant &Value, qint16 Format)
{
    const QString member = u"DataObject.SetData"_s;
    QMimeData &data = sourceData(member);
    const QStringList names = namesOf(Format);
    if (names.isEmpty())
        throw Error(InvalidCall, member, u"There is no format %1"_s.arg(Format));
    if (Value.isValid() && !fits(Value, Format))
        throw Error(TypeMismatch, member, u"Type mismatch"_s);
    if (Value.isValid()) {
        put(data, Value, Format);
    } else if (auto *drag = qobject_cast<DragData *>(&data)) {
        for (const QString &name : names)
            drag->promise(name);
    }
}

void DataObject::Clear()
{
    QMimeData &data = sourceData(u"DataObject.Clear"_s);
    if (auto *drag = qobject_cast<DragData *>(&data))
        drag->keepNoPromise();
    data.clear();
}

const QMimeData *DataObject::mimeData() const
{
    return d->data;
}

} // namespace ORVTListview
