#include <ORVTListview/HoverAnswer.h>

namespace ORVTListview {

struct HoverAnswer::Private
{
    QString text;
    QString name;
    LwType kind = dsCode;
    QString value;
    QString unit;
    QString description;
};

HoverAnswer::HoverAnswer()
    : d(std::make_unique<Private>())
{
}

HoverAnswer::~HoverAnswer() = default;

QString HoverAnswer::text() const
{
    return d->text;
}

void HoverAnswer::setText(const QString &text)
{
    d->text = text;
}

QString HoverAnswer::name() const
{
    return d->name;
}

void HoverAnswer::setName(const QString &name)
{
    d->name = name;
}

LwType HoverAnswer::kind() const
{
    return d->kind;
}

void HoverAnswer::setKind(LwType kind)
{
    d->kind = kind;
}

QString HoverAnswer::value() const
{
    return d->value;
}

void HoverAnswer::setValue(const QString &value)
{
    d->value = value;
}

QString HoverAnswer::unit() const
{
    return d->unit;
}

void HoverAnswer::setUnit(const QString &unit)
{
    d->unit = unit;
}

QString HoverAnswer::description() const
{
    return d->description;
}

void HoverAnswer::setDescription(const QString &description)
{
    d->description = description;
}

bool HoverAnswer::isEmpty() const
{
    return d->text.isEmpty() && d->name.isEmpty() && d->value.isEmpty() && d->description.isEmpty();
}

} // namespace ORVTListview
