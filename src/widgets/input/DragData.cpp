#include "widgets/input/DragData.h"

#include <QtCore/QScopedValueRollback>

namespace ORVTListview {

void DragData::promise(const QString &mimeType)
{
    if (!m_promised.contains(mimeType))
        m_promised.append(mimeType);
}

QStringList DragData::formats() const
{
    QStringList all = QMimeData::formats();
    for (const QString &mimeType : m_promised) {
        if (!all.contains(mimeType))
            all.append(mimeType);
    }
    return all;
}

QVariant DragData::retrieveData(const QString &mimeType, QMetaType type) const
{
    const bool wanted = m_promised.contains(mimeType) && !QMimeData::formats().contains(mimeType);
    if (wanted && m_maker && !m_making) {
        const QScopedValueRollback making(m_making, true);
        m_maker(mimeType);
    }
    return QMimeData::retrieveData(mimeType, type);
}

} // namespace ORVTListview
