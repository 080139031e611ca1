#pragma once

#include "project/RecoveryPlace.h"

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <optional>
#include <vector>

namespace ORVTListview {

struct RecoverySlots;

// Where one workbench keeps what is not saved of a project: a file beside the project's
// own one, whatever links lead there, or in the user's data folder where there can be none.
// Several workbenches on one project, of whatever user and machine, have one each; a slot
// whose workbench lives is nobody else's.
class RecoverySlot
{
public:
    static RecoverySlots slotsOf(const QString &projectFile);

    // Whether something was left in it.
    bool hasFile() const;

    // What was left; empty when it cannot be read.
    QByteArray read() const;

    // Raises Error when neither place takes the file.
    void write(const QByteArray &text);
    void remove();

    // Whether nobody else has removed or written the file since it was written here.
    bool isAsWritten() const;

    // Where it was written last, or was found.
    QString fileName() const { return m_fileName; }

private:
    RecoverySlot(const QString &projectFile, int number);

    bool isOurs() const;
    bool isOthers() const;
    void find();
    void removeBut(const QString &fileName);

    std::vector<RecoveryPlace> m_places; // the better one first
    QString m_fileName;
    QDateTime m_written; // the file's own time
};

// The slots of a project that no other workbench holds.
struct RecoverySlots
{
    std::vector<RecoverySlot> left;  // by workbenches that ended without saving, the latest first
    std::optional<RecoverySlot> own; // a free one; none where fifty are taken
    bool isOpenElsewhere = false;    // another workbench has the project open
};

} // namespace ORVTListview
