#pragma once

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtGui/QTextCursor>

namespace ORVTListview {

class RichTextBox;

// A box's text as other programs take it: lines end in LF, which the toolkit turns into
// what the platform has.
QString asOffered(QString text);

// Selected text for a middle click, where the platform has such a thing.
void offerSelection(const RichTextBox &box);

// The plain text between a cursor's two ends. It is read when it is asked for:
// the toolkit offers the selection to other programs at each change, and reading
// it every time would make extending a selection slower the longer it gets.
class BoxMimeData final : public QMimeData
{
    Q_OBJECT

public:
    BoxMimeData(const RichTextBox &box, const QTextCursor &selection);

    QStringList formats() const override;
    bool hasFormat(const QString &mimeType) const override;

protected:
    QVariant retrieveData(const QString &mimeType, QMetaType type) const override;

private:
    QPointer<const RichTextBox> m_box;
    QTextCursor m_selection;
};

} // namespace ORVTListview
