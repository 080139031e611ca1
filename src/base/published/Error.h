#pragma once

#include <ORVTListview/CoreExport.h>

#include <QtCore/QString>

#include <exception>
#include <memory>

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
    Error(const Error &) noexcept = default;            // no move: an error always says what it is
    Error &operator=(const Error &) noexcept = default; // no move, as above
    ~Error() override;

    // One of ErrorNumber, or an operation's own: ObjectErrorBase plus a code.
    qint32 Number() const;

    // The routine that failed: "ListItem.SubItem".
    QString Source() const;

    // A sentence to be shown, in English.
    QString Description() const;

    // "Source: Description" in UTF-8, for logs.
    const char *what() const noexcept override;

private:
    struct Private;
    std::shared_ptr<const Private> d; // shared, as copying an exception must not throw
};

} // namespace ORVTListview
