#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <memory>

class QMimeData;

namespace ORVTListview {

// What a drag carries, as the events of drag and drop hand it to the host. Good
// only while such an event is raised; do not keep it.
//
// A format is a number: those of KnownFormat, and for any other MIME type the one that
// FormatNumber gives, which holds until the program ends.
class ORVT_EXPORT DataObject
{
public:
    // The formats with a number of their own, and the type of their values.
    enum KnownFormat : qint16 {
        Text = 1,          // QString
        Bitmap = 2,        // QImage
        Files = 15,        // QStringList of local paths
        RichText = -16639, // QString
        // The value of any other format is a QByteArray.
    };

    // The source of a drag fills its data; for a target it is read-only.
    enum class Side { Source, Target };

    DataObject(QMimeData *data, Side side);
    ~DataObject();
    Q_DISABLE_COPY_MOVE(DataObject) // good for one event

    // The number of a MIME type, always the same while the program runs.
    static qint16 FormatNumber(const QString &MimeType);

    // Empty for a number that FormatNumber has not given.
    static QString MimeType(qint16 Format);

    // Whether the data have that format.
    bool GetFormat(qint16 Format) const;

    // Raises Error (InvalidCall) for a format that is not there.
    QVariant GetData(qint16 Format) const;

    // Both raise Error (InvalidCall) in a target. SetData with an invalid value
    // promises the format: OLESetData asks for it when a target wants it. A format
    // without a MIME type and a value that does not fit raise Error too
    // (InvalidCall, TypeMismatch).
    void SetData(const QVariant &Value = {}, qint16 Format = Text);
    void Clear();

    // The data itself, for what the members above do not offer. Null once it is
    // gone. Never owned.
    const QMimeData *mimeData() const;

private:
    QMimeData &sourceData(const QString &member) const;

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ORVTListview
