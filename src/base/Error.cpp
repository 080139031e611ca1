#include <ORVTListview/Error.h>

namespace ORVTListview {

Error::Error(qint32 number, const QString &source, const QString &description)
    : m_number(number)
    , m_source(source)
    , m_description(description)
    , m_what((source + QStringLiteral(": ") + description).toUtf8())
{
}

// Out of line, so that the class has one type information in all libraries.
Error::~Error() = default;

const char *Error::what() const noexcept
{
    return m_what.constData();
}

} // namespace ORVTListview
