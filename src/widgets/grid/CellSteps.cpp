#include "widgets/grid/CellSteps.h"

#include "shared/texts/TextTable.h"
#include "widgets/grid/CellWriter.h"

#include <QtGui/QUndoCommand>
#include <QtGui/QUndoStack>

#include <memory>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// A host may destroy the list, and with it the stack, while it is told: the flag is held
// by whoever still needs it.
class CellStep final : public QUndoCommand
{
public:
    CellStep(CellWriter &writer, const QList<CellChange> &changes,
             const std::shared_ptr<bool> &isStepping)
        : QUndoCommand(Localise(changes.size() == 1 ? u"Edit Cell"_s : u"Edit Cells"_s))
        , m_writer(&writer)
        , m_changes(changes)
        , m_isStepping(isStepping)
    {
    }

    void undo() override { step(&CellWriter::revert); }

    // The first time it is done already.
    void redo() override
    {
        if (!std::exchange(m_isFirst, false))
            step(&CellWriter::repeat);
    }

private:
    void step(bool (CellWriter::*change)(const QList<CellChange> &))
    {
        const bool before = std::exchange(*m_isStepping, true);
        const bool isDone = m_writer && (m_writer.data()->*change)(m_changes);
        *m_isStepping = before;
        setObsolete(!isDone);
    }

    const QPointer<CellWriter> m_writer;
    const QList<CellChange> m_changes;
    const std::shared_ptr<bool> m_isStepping;
    bool m_isFirst = true;
};

} // namespace

CellSteps::CellSteps(CellWriter &writer)
    : m_writer(writer)
    , m_isStepping(std::make_shared<bool>(false))
{
    writer.setKeeper([this](const QList<CellChange> &changes) {
        stack().push(new CellStep(m_writer, changes, m_isStepping));
    });
}

CellSteps::~CellSteps()
{
    if (m_own && *m_isStepping) // one of its steps is being done
        m_own->deleteLater();
    else
        delete m_own.data();
}

QUndoStack &CellSteps::stack()
{
    if (m_host)
        return *m_host;
    if (!m_own)
        m_own = new QUndoStack;
    return *m_own;
}

void CellSteps::setStack(QUndoStack *host)
{
    m_host = host;
}

void CellSteps::undo()
{
    if (!*m_isStepping)
        stack().undo();
}

void CellSteps::redo()
{
    if (!*m_isStepping)
        stack().redo();
}

void CellSteps::forget()
{
    if (m_own && !*m_isStepping)
        m_own->clear();
}

} // namespace ORVTListview
