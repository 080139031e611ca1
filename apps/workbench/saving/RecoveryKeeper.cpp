#include "workbench/saving/RecoveryKeeper.h"

#include "project/ProjectDocument.h"

#include <ORVTListview/Error.h>

#include <QtCore/QTimer>

#include <chrono>
#include <utility>

namespace ORVTListview {

using namespace std::chrono_literals;

namespace {

constexpr auto usualInterval = 2s;

// Where the tables make no project they stay as they were; the texts of the programs are told
// apart by their order, so that the list is that of now.
QByteArray jsonOf(TableSaving tables, const QByteArray &json, QString &fault)
{
    try {
        return tables.into(json, TableSaving::Theirs::Overwritten);
    } catch (const Error &error) {
        fault = error.Description();
    }
    tables.now = tables.saved;
    try {
        return tables.into(json, TableSaving::Theirs::Overwritten);
    } catch (const Error &) {
        return json;
    }
}

} // namespace

RecoveryKeeper::RecoveryKeeper(ProjectDocument &document, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_timer(new QTimer(this))
{
    m_timer->setSingleShot(true);
    m_timer->setInterval(usualInterval);
    m_writer.setMaxThreadCount(1);
    connect(m_timer, &QTimer::timeout, this, &RecoveryKeeper::tick);
    connect(&document, &ProjectDocument::changed, this, &RecoveryKeeper::note);
}

RecoveryKeeper::~RecoveryKeeper()
{
    settle(); // it has our slot
}

void RecoveryKeeper::setInterval(std::chrono::milliseconds interval)
{
    m_timer->setInterval(interval);
}

void RecoveryKeeper::end()
{
    m_timer->stop();
    settle();
    m_written.reset();
    m_own.reset();
    m_left.clear();
    m_isOpenElsewhere = false;
}

void RecoveryKeeper::begin()
{
    end();
    if (m_keepsNothing)
        return;
    RecoverySlots found = RecoverySlot::slotsOf(m_document.project()->fileName());
    m_own = std::move(found.own);
    m_left = std::move(found.left);
    m_isOpenElsewhere = found.isOpenElsewhere;
    if (m_document.isModified())
        note();
}

std::optional<RecoveryKeeper::Left> RecoveryKeeper::left() const
{
    if (m_left.empty())
        return std::nullopt;
    return Left{readRecovery(m_left.front().read()), m_left.front().fileName()};
}

void RecoveryKeeper::removeLeft()
{
    m_left.front().remove();
    leaveLeft();
}

void RecoveryKeeper::leaveLeft()
{
    m_left.erase(m_left.begin());
}

void RecoveryKeeper::note()
{
    if (!m_keepsNothing && !m_timer->isActive())
        m_timer->start(); // not anew: somebody who never pauses is kept, too
}

void RecoveryKeeper::tick()
{
    if (!m_document.isModified()) {
        drop();
        return;
    }
    if (m_isWriting) {
        note();
        return;
    }
    const Work now = work();
    if (!m_own)
        finish(now, write(m_own, now));
    else if (!isKept(now))
        start(now);
}

RecoveryKeeper::Work RecoveryKeeper::work() const
{
    const Project &project = *m_document.project();
    QStringList programs;
    for (const ProjectProgram &program : project.programs())
        programs.append(m_document.program(program.id));
    return {project.json(), programs, project.tableSaving()};
}

bool RecoveryKeeper::isKept(const Work &work) const
{
    return m_own && m_written == work && m_own->isAsWritten();
}

void RecoveryKeeper::start(const Work &work)
{
    m_isWriting = true;
    Q_EMIT keeping();
    m_writer.start([this, work, round = m_round] {
        const Outcome outcome = write(m_own, work);
        const auto tell = [this, work, outcome, round] {
            if (round == m_round)
                finish(work, outcome);
        };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    });
}

RecoveryKeeper::Outcome RecoveryKeeper::write(std::optional<RecoverySlot> &slot, const Work &work)
{
    if (!slot)
        return {false, tr("Too many workbenches have this project open.")};
    QString fault;
    const RecoveredWork dated{work.tables.fileName, QDateTime::currentDateTimeUtc(),
                              jsonOf(work.tables, work.json, fault), work.programs};
    try {
        slot->write(recoveryText(dated));
    } catch (const Error &error) {
        return {false, error.Description()};
    }
    return {true, fault};
}

bool RecoveryKeeper::finish(const Work &work, const Outcome &outcome)
{
    m_isWriting = false;
    if (outcome.isWritten)
        m_written = work;
    if (!outcome.fault.isEmpty()) {
        m_hasFailed = true;
        note();
        Q_EMIT failed(outcome.fault);
        return false;
    }
    if (std::exchange(m_hasFailed, false))
        Q_EMIT recovered();
    Q_EMIT kept();
    return true;
}

// Nothing is being written any more, and what was comes too late to be told.
void RecoveryKeeper::settle()
{
    m_writer.waitForDone();
    m_isWriting = false;
    ++m_round;
}

bool RecoveryKeeper::keepNow()
{
    settle();
    const Work now = work();
    if (m_keepsNothing || isKept(now))
        return true;
    Q_EMIT keeping();
    return finish(now, write(m_own, now));
}

void RecoveryKeeper::drop()
{
    m_timer->stop();
    settle();
    m_written.reset();
    if (m_own && m_own->hasFile())
        m_own->remove();
    if (std::exchange(m_hasFailed, false))
        Q_EMIT recovered();
}

} // namespace ORVTListview
