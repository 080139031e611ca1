#include <ORVTListview/DataObject.h>

#include "base/ThreadState.h"
#include "widgets/input/DragData.h"
#include <ORVTListview/Error.h>

#include <QtCore/QUrl>
#include <QtGui/QImage>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

struct FormatEntry
{
    DataObject::KnownFormat number;
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
        data.setData(DataObject::MimeType(format), value.toString().toUtf8());
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

DataObject::DataObject(QMimeData *data, Side side)
    : m_data(data)
    , m_side(side)
{
}

qint16 DataObject::FormatNumber(const QString &MimeType)
{
    for (const FormatEntry &known : knownFormats) {
        if (MimeType == known.mimeType)
            return known.number;
    }
    OtherFormats &others = threadPart<OtherFormats>();
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
    const QString type = MimeType(Format);
    return m_data && !type.isEmpty() && m_data->hasFormat(type);
}

QVariant DataObject::GetData(qint16 Format) const
{
    if (!GetFormat(Format))
        throw Error(InvalidCall, u"DataObject.GetData"_s,
                    u"There are no data of format %1"_s.arg(Format));
    switch (Format) {
    case Text:
        return m_data->text();
    case Bitmap:
        return m_data->imageData();
    case Files:
        return localPaths(*m_data);
    case RichText:
        return QString::fromUtf8(m_data->data(MimeType(Format)));
    default:
        return m_data->data(MimeType(Format));
    }
}

QMimeData &DataObject::sourceData(const QString &member) const
{
    if (m_side != Side::Source || !m_data)
        throw Error(InvalidCall, member, u"Only the source of a drag can change its data"_s);
    return *m_data;
}

void DataObject::SetData(const QVariant &Value, qint16 Format)
{
    const QString member = u"DataObject.SetData"_s;
    QMimeData &data = sourceData(member);
    const QString type = MimeType(Format);
    if (type.isEmpty())
        throw Error(InvalidCall, member, u"There is no format %1"_s.arg(Format));
    if (Value.isValid() && !fits(Value, Format))
        throw Error(TypeMismatch, member, u"Type mismatch"_s);
    if (Value.isValid())
        put(data, Value, Format);
    else if (auto *drag = qobject_cast<DragData *>(&data))
        drag->promise(type);
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
    return m_data;
}

} // namespace ORVTListview
