#include <ORVTListview/Error.h>

#include <QtCore/QByteArray>

namespace ORVTListview {

struct Error::Private
{
    qint32 number;
    QString source;
    QString description;
    QByteArray what;
};

Error::Error(qint32 number, const QString &source, const QString &description)
    : d(std::make_shared<const Private>(Private{
          number, source, description, (source + QStringLiteral(": ") + description).toUtf8()}))
{
}

// Out of line, so that the class has one type information in all libraries.
Error::~Error() = default;

qint32 Error::Number() const
{
    return d->number;
}

QString Error::Source() const
{
    return d->source;
}

QString Error::Description() const
{
    return d->description;
}

const char *Error::what() const noexcept
{
    return d->what.constData();
}

} // namespace ORVTListview
