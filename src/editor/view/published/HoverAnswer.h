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
    QString text() const { return part(Text); }
    void setText(const QString &text) { setPart(Text, text); }

    // The parts of a card.
    QString name() const { return part(Name); }
    void setName(const QString &name) { setPart(Name, name); }

    // The type of the point, shown by its name and its picture; dsCode, as at first, for
    // none.
    LwType kind() const;
    void setKind(LwType kind);

    // What it is now, such as "19.4", its unit, and a sentence of what it is.
    QString value() const { return part(Value); }
    void setValue(const QString &value) { setPart(Value, value); }
    QString unit() const { return part(Unit); }
    void setUnit(const QString &unit) { setPart(Unit, unit); }
    QString description() const { return part(Description); }
    void setDescription(const QString &description) { setPart(Description, description); }

    // While there is nothing to show.
    bool isEmpty() const;

private:
    enum Part { Text, Name, Value, Unit, Description };

    QString part(Part part) const;
    void setPart(Part part, const QString &text);

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ORVTListview
