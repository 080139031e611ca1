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

} // namespace

RecoveryKeeper::RecoveryKeeper(ProjectDocument &document, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_timer(new QTimer(this))
{
    m_timer->setSingleShot(true);
    m_timer->setInterval(usualInterval);
    connect(m_timer, &QTimer::timeout, this, &RecoveryKeeper::tick);
    connect(&document, &ProjectDocument::changed, this, &RecoveryKeeper::note);
}

RecoveryKeeper::~RecoveryKeeper() = default;

void RecoveryKeeper::setInterval(std::chrono::milliseconds interval)
{
    m_timer->setInterval(interval);
}

void RecoveryKeeper::begin()
{
    m_timer->stop();
    m_written.reset();
    m_own.reset();
    m_left.clear();
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
    if (!m_timer->isActive())
        m_timer->start(); // not anew: somebody who never pauses is kept, too
}

void RecoveryKeeper::tick()
{
    if (m_document.isModified()) {
        if (!keepNow())
            note();
    } else {
        drop();
    }
}

bool RecoveryKeeper::keepNow()
{
    try {
        if (!write())
            return true;
    } catch (const Error &error) {
        m_hasFailed = true;
        Q_EMIT failed(error.Description());
        return false;
    }
    if (std::exchange(m_hasFailed, false))
        Q_EMIT recovered();
    Q_EMIT kept();
    return true;
}

// False when it is in the file already. Tables that make no project do not keep the program
// out of the file; they are told, too.
bool RecoveryKeeper::write()
{
    const Project *project = m_document.project();
    RecoveredWork work{project->fileName(), {}, project->json(), m_document.program()};
    std::optional<Error> fault;
    try {
        work.json = project->kept();
    } catch (const Error &error) {
        fault = error;
    }
    if (!m_own)
        throw Error(0, {}, tr("Too many workbenches have this project open."));
    const bool isKept = m_written == work && m_own->isAsWritten();
    if (!isKept) {
        RecoveredWork dated = work;
        dated.when = QDateTime::currentDateTimeUtc();
        m_own->write(recoveryText(dated));
        m_written = std::move(work);
    }
    if (fault)
        throw Error(*fault);
    return !isKept;
}

void RecoveryKeeper::drop()
{
    m_timer->stop();
    m_written.reset();
    if (m_own && m_own->hasFile())
        m_own->remove();
    if (std::exchange(m_hasFailed, false))
        Q_EMIT recovered();
}

} // namespace ORVTListview
