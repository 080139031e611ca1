#pragma once

#include "project/RecoveryFile.h"
#include "project/RecoverySlot.h"

#include <QtCore/QObject>

#include <chrono>
#include <optional>
#include <vector>

class QTimer;

namespace ORVTListview {

class ProjectDocument;

// Keeps what is not saved of the open project in its recovery file, every two seconds
// while something changes, so that no end of the workbench loses more than that.
class RecoveryKeeper : public QObject
{
    Q_OBJECT

public:
    explicit RecoveryKeeper(ProjectDocument &document, QObject *parent = nullptr);
    ~RecoveryKeeper() override;

    // How long a change waits at most, two seconds at first.
    void setInterval(std::chrono::milliseconds interval);

    // The document's project is another one, or at another place. What workbenches left of
    // it that ended without saving can be taken then.
    void begin();

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

    // Writes what is not saved now. False, after failed(), when that is impossible.
    bool keepNow();

    // What is not saved is not wanted, or there is nothing.
    void drop();

Q_SIGNALS:
    // What is not saved now is in the file.
    void kept();

    // What is typed is not safe, with the reason; and it is again.
    void failed(const QString &reason);
    void recovered();

private:
    void note();
    void tick();
    bool write();

    ProjectDocument &m_document;
    QTimer *m_timer;
    std::vector<RecoverySlot> m_left;
    std::optional<RecoverySlot> m_own;
    std::optional<RecoveredWork> m_written; // last, but for the time
    bool m_isOpenElsewhere = false;
    bool m_hasFailed = false;
};

} // namespace ORVTListview
