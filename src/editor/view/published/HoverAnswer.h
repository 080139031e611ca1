#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/Types.h>

#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>

namespace ORVTListview {

// What a host tells of a word of the program when CodeView::hoverAsked asks: a text of its
// own, or what a card is made of. All of it is empty at first, and shows nothing. Texts
// are shown as they stand, no markup is read; what is too long to be read is cut.
class ORVT_EXPORT HoverAnswer : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QString name READ name WRITE setName)
    Q_PROPERTY(ORVTListview::LwType kind READ kind WRITE setKind)
    Q_PROPERTY(QString value READ value WRITE setValue)
    Q_PROPERTY(QString unit READ unit WRITE setUnit)
    Q_PROPERTY(QString description READ description WRITE setDescription)

public:
    HoverAnswer();
    ~HoverAnswer() override;

    // Shown alone, whatever else is set.
    QString text() const;
    void setText(const QString &text);

    // The parts of a card.
    QString name() const;
    void setName(const QString &name);

    // The type of the point, shown by its name and its picture; dsCode, as at first, for
    // none.
    LwType kind() const;
    void setKind(LwType kind);

    QString value() const;
    void setValue(const QString &value);
    QString unit() const;
    void setUnit(const QString &unit);
    QString description() const;
    void setDescription(const QString &description);

    bool isEmpty() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ORVTListview
