#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QMetaType>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtGui/QIcon>

namespace ORVTListview {

// What a host shows beside a line of the program.
struct MarginMark
{
    Q_GADGET_EXPORT(ORVT_EXPORT)
    Q_PROPERTY(qint32 line MEMBER line)
    Q_PROPERTY(QIcon picture READ readPicture WRITE writePicture)
    Q_PROPERTY(QString text MEMBER text)

public:
    qint32 line = 1; // from 1
    QIcon picture;   // without one the mark is told, and not seen
    QString text;    // a sentence, shown as it stands

private:
    // Pictures cannot be compared, as the toolkit does with members.
    QIcon readPicture() const { return picture; }
    void writePicture(const QIcon &icon) { picture = icon; }
};

} // namespace ORVTListview

Q_DECLARE_METATYPE(ORVTListview::MarginMark)
