#pragma once

#include "project/RecoveryFile.h"
#include "project/RecoverySlot.h"
#include "project/TableSaving.h"

#include <QtCore/QObject>
#include <QtCore/QThreadPool>

#include <chrono>
#include <optional>
#include <vector>

class QTimer;

namespace ORVTListview {

class ProjectDocument;

// Keeps what is not saved of the open project in its recovery file, every two seconds
// while something changes, so that no end of the workbench loses more than that. Encoding
// and writing are another thread's.
class RecoveryKeeper : public QObject
{
    Q_OBJECT

public:
    explicit RecoveryKeeper(ProjectDocument &document, QObject *parent = nullptr);
    ~RecoveryKeeper() override;

    // How long a change waits at most, two seconds at first.
    void setInterval(std::chrono::milliseconds interval);

    // For a window that nobody works in: it keeps nothing, and finds nothing that was left
    // nor anybody else. To be said before a project is opened.
    void keepNothing() { m_keepsNothing = true; }

    // The document's project is another one, or at another place. What workbenches left of
    // it that ended without saving can be taken then.
    void begin();

    // No project is open any more.
    void end();

    // The latest that was left and not yet looked at; none when there is no more.
    struct Left
    {
        std::optional<RecoveredWork> work; // none for a file that cannot be read
        QString fileName;
    };
    bool hasLeft() const { return !m_left.empty(); }
    std::optional<Left> left() const;

    // It has been dealt with: its file goes, or stays for another time.
    void removeLeft();
    void leaveLeft();

    bool isOpenElsewhere() const { return m_isOpenElsewhere; }

    // Writes what is not saved now, if it keeps anything, before it returns. False, after failed(),
    // when that is impossible.
    bool keepNow();

    // What is not saved is not wanted, or there is nothing.
    void drop();

Q_SIGNALS:
    // What is not saved now is on its way into the file; and it is there.
    void keeping();
    void kept();

    // What is typed is not safe, with the reason; and it is again.
    void failed(const QString &reason);
    void recovered();

private:
    // All that the file tells but for the time, as values for the other thread.
    struct Work
    {
        QByteArray json;
        QStringList programs;
        TableSaving tables;

        friend bool operator==(const Work &, const Work &) = default;
    };
    struct Outcome
    {
        bool isWritten = false;
        QString fault; // empty for none; tables that make no project are told and written
    };
    static Outcome write(std::optional<RecoverySlot> &slot, const Work &work);

    void note();
    void tick();
    Work work() const;
    bool isKept(const Work &work) const;
    void start(const Work &work);
    bool finish(const Work &work, const Outcome &outcome);
    void settle();

    ProjectDocument &m_document;
    QTimer *m_timer;
    std::vector<RecoverySlot> m_left;
    std::optional<RecoverySlot> m_own; // the other thread's while that writes
    std::optional<Work> m_written;     // last
    bool m_keepsNothing = false;
    bool m_isOpenElsewhere = false;
    bool m_hasFailed = false;
    bool m_isWriting = false;
    int m_round = 0; // of writing, to tell what comes too late
    QThreadPool m_writer;
};

} // namespace ORVTListview
