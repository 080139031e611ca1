#pragma once

#include <QtCore/QMimeData>
#include <QtCore/QStringList>

#include <functional>

namespace ORVTListview {

// Data of a drag of ours. A promised format is there for whoever asks which
// formats there are, and is made when its data are wanted.
class DragData final : public QMimeData
{
    Q_OBJECT

public:
    using Maker = std::function<void(const QString &mimeType)>;

    // Is to set the data of a promised format.
    void setMaker(Maker maker) { m_maker = std::move(maker); }

    void promise(const QString &mimeType);
    void keepNoPromise() { m_promised.clear(); }

    QStringList formats() const override;

protected:
    QVariant retrieveData(const QString &mimeType, QMetaType type) const override;

private:
    Maker m_maker;
    QStringList m_promised;
    mutable bool m_making = false;
};

} // namespace ORVTListview
