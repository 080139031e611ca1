#pragma once

#include <ORVTListview/CoreExport.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <exception>

namespace ORVTListview {

// The numbers that are not an operation's own. An operation with numbers of its
// own raises ObjectErrorBase plus a code.
enum ErrorNumber : qint32 {
    InvalidCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    ObjectNotSet = 91,
    ObjectErrorBase = -2147221504,
};

// What a published member raises when it fails: a number, the routine that
// failed and a text to show. Nothing else escapes a published member.
class ORVT_CORE_EXPORT Error : public std::exception
{
public:
    Error(qint32 number, const QString &source, const QString &description);
    ~Error() override;

    qint32 Number() const { return m_number; }
    QString Source() const { return m_source; }
    QString Description() const { return m_description; }

    // "Source: Description" in UTF-8, for logs.
    const char *what() const noexcept override;

private:
    qint32 m_number;
    QString m_source;
    QString m_description;
    QByteArray m_what;
};

} // namespace ORVTListview
