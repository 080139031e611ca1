#include "widgets/box/BoxMimeData.h"

#include <ORVTListview/RichTextBox.h>

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

namespace ORVTListview {
namespace {

constexpr QLatin1StringView plainText("text/plain");

} // namespace

QString asOffered(QString text)
{
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

void offerSelection(const RichTextBox &box)
{
    QClipboard &clipboard = *QGuiApplication::clipboard();
    const QTextCursor selection = box.textCursor();
    if (clipboard.supportsSelection() && selection.hasSelection())
        clipboard.setMimeData(new BoxMimeData(box, selection), QClipboard::Selection);
}

BoxMimeData::BoxMimeData(const RichTextBox &box, const QTextCursor &selection)
    : m_box(&box)
    , m_selection(selection)
{
}

QStringList BoxMimeData::formats() const
{
    return {plainText};
}

bool BoxMimeData::hasFormat(const QString &mimeType) const
{
    return mimeType == plainText;
}

QVariant BoxMimeData::retrieveData(const QString &mimeType, QMetaType) const
{
    if (!m_box || mimeType != plainText)
        return {};
    return asOffered(m_box->textOf(m_selection));
}

} // namespace ORVTListview
