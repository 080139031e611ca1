#include "widgets/box/BoxMimeData.h"

#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {
namespace {

constexpr QLatin1StringView plainText("text/plain");

} // namespace

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
    return m_box->textOf(m_selection);
}

} // namespace ORVTListview
