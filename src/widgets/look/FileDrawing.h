#pragma once

#include "widgets/look/Drawing.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QString>

#include <cstddef>
#include <memory>

namespace ORVTListview {

// A host's picture, in any format that the toolkit reads. SVG needs the toolkit's plug-in
// for it, which stays sharp; other formats are scaled. Holds the file's bytes: the file may
// change or go.
class FileDrawing final : public Drawing
{
public:
    // Null for a file that is no picture.
    static std::shared_ptr<const FileDrawing> of(const QString &file);

    // Of what the file held, to tell it from what it held at another time.
    std::size_t fingerprint() const { return qHash(m_content, 0); }

    QSizeF size() const override;
    void paint(QPainter *painter, const QRectF &area) const override;

private:
    FileDrawing(QByteArray content, QSize size);

    QByteArray m_content;
    QSize m_size;
};

} // namespace ORVTListview
