#include "widgets/grid/CellSteps.h"

#include "base/EventGuard.h"
#include "base/ThreadState.h"
#include "shared/texts/TextTable.h"
#include "widgets/grid/CellWriter.h"

#include <QtCore/QHash>
#include <QtCore/QMetaObject>
#include <QtGui/QUndoCommand>
#include <QtGui/QUndoStack>

#include <functional>
#include <memory>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// The stacks that are within a step or a push, with what is to come when that is over:
// a stack bears no push by those whom it tells.
struct StacksInUse
{
    struct Later
    {
        QPointer<QObject> context;
        std::function<void()> act;
    };

    struct Waiting
    {
        QList<Later> next;  // when the stack is done, though it still counts as used
        QList<Later> later; // when the event loop comes to it
    };

    QHash<const QUndoStack *, Waiting> waiting;
};

// Done once, when the stack says that it is done with a step, or else soon.
void whenDone(const QUndoStack *stack, const StacksInUse::Later &later)
{
    const auto once = [act = later.act, isDone = std::make_shared<bool>(false)] {
        if (!std::exchange(*isDone, true))
            act();
    };
    const auto onceOnly =
        static_cast<Qt::ConnectionType>(Qt::DirectConnection | Qt::SingleShotConnection);
    QObject::connect(stack, &QUndoStack::indexChanged, later.context.data(), once, onceOnly);
    QMetaObject::invokeMethod(later.context.data(), once, Qt::QueuedConnection);
}

class StackUse
{
public:
    // Whether the stack is done with its step when this one ends.
    enum class Ends { BehindStep, InStep };

    explicit StackUse(const QUndoStack *stack, Ends ends = Ends::BehindStep)
        : m_stack(stack)
        , m_isOutermost(!isUsed(stack))
        , m_ends(ends)
    {
        if (m_isOutermost)
            threadPart<StacksInUse>().waiting.insert(stack, {});
    }
    ~StackUse()
    {
        if (!m_isOutermost)
            return;
        auto &waiting = threadPart<StacksInUse>().waiting;
        while (!waiting[m_stack].next.isEmpty()) {
            const StacksInUse::Later next = waiting[m_stack].next.takeFirst();
            if (next.context && m_ends == Ends::InStep)
                whenDone(m_stack, next);
            else if (next.context)
                next.act();
        }
        for (const StacksInUse::Later &each : waiting.take(m_stack).later) {
            if (each.context)
                QMetaObject::invokeMethod(each.context.data(), each.act, Qt::QueuedConnection);
        }
    }
    Q_DISABLE_COPY_MOVE(StackUse) // lasts for a block

    static bool isUsed(const QUndoStack *stack)
    {
        return threadPart<StacksInUse>().waiting.contains(stack);
    }
    static void afterwards(const QUndoStack *stack, const StacksInUse::Later &later)
    {
        threadPart<StacksInUse>().waiting[stack].later.append(later);
    }
    static void next(const QUndoStack *stack, const StacksInUse::Later &next)
    {
        threadPart<StacksInUse>().waiting[stack].next.append(next);
    }

private:
    const QUndoStack *const m_stack;
    const bool m_isOutermost;
    const Ends m_ends;
};

class CellStep final : public QUndoCommand
{
public:
    CellStep(CellWriter &writer, const QList<CellChange> &changes, const QUndoStack &stack)
        : QUndoCommand(Localise(changes.size() == 1 ? u"Edit Cell"_s : u"Edit Cells"_s))
        , m_writer(&writer)
        , m_changes(changes)
        , m_stack(&stack)
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
    // Outermost where the host itself has asked the stack for the step.
    void step(bool (CellWriter::*change)(const QList<CellChange> &))
    {
        const StackUse use(m_stack, StackUse::Ends::InStep);
        setObsolete(!m_writer || !(m_writer.data()->*change)(m_changes));
        if (m_writer)
            tellNext();
    }

    void tellNext()
    {
        const auto tell = [writer = m_writer.data(), stack = m_stack] {
            const StackUse use(stack);
            writer->tellRepeated();
        };
        StackUse::next(m_stack, {m_writer.data(), tell});
    }

    const QPointer<CellWriter> m_writer;
    const QList<CellChange> m_changes;
    const QUndoStack *const m_stack; // which owns it
    bool m_isFirst = true;
};

} // namespace

CellSteps::CellSteps(CellWriter &writer)
    : m_writer(writer)
{
    writer.setKeeper([this](const QList<CellChange> &changes) {
        if (m_history.isSet())
            return;
        m_unkept.enqueue(changes);
        keep();
    });
}

CellSteps::~CellSteps()
{
    if (StackUse::isUsed(m_own)) // it is what has led here
        m_own->deleteLater();
    else
        delete m_own.data();
}

// One push after the other, each of which may end the list.
void CellSteps::keep()
{
    const QPointer<CellWriter> alive(&m_writer);
    while (alive && !m_unkept.isEmpty()) {
        QUndoStack &to = stack();
        if (StackUse::isUsed(&to)) {
            StackUse::afterwards(&to, {&m_writer, [this] { keep(); }});
            return;
        }
        const StackUse use(&to);
        EventGuard::run([&] { // whom the stack tells may throw
            to.push(new CellStep(m_writer, m_unkept.dequeue(), to));
            return true;
        });
    }
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

void CellSteps::setHistory(const std::optional<UndoHistory> &history)
{
    m_history.set(history);
    forget();
}

bool CellSteps::canUndo()
{
    return m_history.isSet() ? m_history.canUndo() : stack().canUndo();
}

bool CellSteps::canRedo()
{
    return m_history.isSet() ? m_history.canRedo() : stack().canRedo();
}

void CellSteps::undo()
{
    if (m_history.isSet())
        m_history.undo();
    else
        step(&QUndoStack::undo);
}

void CellSteps::redo()
{
    if (m_history.isSet())
        m_history.redo();
    else
        step(&QUndoStack::redo);
}

void CellSteps::step(void (QUndoStack::*act)())
{
    const QPointer<CellWriter> alive(&m_writer);
    keep();
    if (alive && !StackUse::isUsed(&stack())) {
        const StackUse use(&stack());
        (stack().*act)();
    }
    if (alive)
        keep();
}

void CellSteps::forget()
{
    m_unkept.clear();
    if (m_own && StackUse::isUsed(m_own))
        StackUse::next(m_own, {&m_writer, [own = m_own] {
                                   if (own)
                                       own->clear();
                               }});
    else if (m_own)
        m_own->clear();
}

} // namespace ORVTListview
