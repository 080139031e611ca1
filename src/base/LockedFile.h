#pragma once

#include <QtCore/QDeadlineTimer>
#include <QtCore/QString>

#include <memory>

namespace ORVTListview {

// A file under the system's own lock: one whose existence is the lock outlives a process
// that is killed at the wrong moment.
class LockedFile
{
public:
    enum class State { Held, HeldElsewhere, Impossible };

    LockedFile(const QString &fileName, const QDeadlineTimer &deadline);
    ~LockedFile();                  // gives the lock back
    Q_DISABLE_COPY_MOVE(LockedFile) // one lock, one release

    State state() const { return m_state; }

    // Whether it still has its name.
    bool isInPlace() const;

    // Before the lock is given back: nobody else removes what another one has locked.
    void remove();

private:
    struct System;
    std::unique_ptr<System> m_system;
    State m_state = State::Impossible;
};

} // namespace ORVTListview
