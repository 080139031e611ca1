#include "widgets/look/FileDrawing.h"

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>

#include <utility>

namespace ORVTListview {
namespace {

QImage read(const QByteArray &content, QSize size)
{
    QBuffer buffer;
    buffer.setData(content);
    QImageReader reader(&buffer);
    reader.setScaledSize(size);
    return reader.read();
}

// Formats that do not tell their size before they are read are read for it.
QSize sizeOf(const QByteArray &content)
{
    QBuffer buffer;
    buffer.setData(content);
    QImageReader reader(&buffer);
    const QSize told = reader.size();
    return told.isValid() ? told : reader.read().size();
}

} // namespace

std::shared_ptr<const FileDrawing> FileDrawing::of(const QString &file)
{
    QFile source(file);
    if (!QFileInfo(file).isFile() || !source.open(QIODevice::ReadOnly))
        return {};
    QByteArray content = source.readAll();
    const QSize size = sizeOf(content);
    if (size.isEmpty())
        return {};
    return std::shared_ptr<const FileDrawing>(new FileDrawing(std::move(content), size));
}

FileDrawing::FileDrawing(QByteArray content, QSize size)
    : m_content(std::move(content))
    , m_size(size)
{
}

QSizeF FileDrawing::size() const
{
    return m_size;
}

void FileDrawing::paint(QPainter *painter, const QRectF &area) const
{
    const QSize pixels = area.size().toSize().expandedTo(QSize(1, 1));
    painter->drawImage(area, read(m_content, pixels));
}

} // namespace ORVTListview
