#include "editor/rules/undo/UndoStore.h"
#include "editor/rules/undo/UndoTape.h"

#include "shared/compression/Compression.h"
#include "support/QtPrinters.h"
#include "support/RandomSeed.h"

#include <gtest/gtest.h>

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QString joined(const UndoRecord &record)
{
    return u"%1\r\n%%%%%%\r\n%2\r\n%%%%%%\r\n%3"_s.arg(record.text)
        .arg(record.selectionStart)
        .arg(record.selectionLength);
}

QString encoded(const QString &record)
{
    if (record.isEmpty())
        return QString();
    const bool isPlain = record.size() < 400 || record.contains(u'Ω');
    return isPlain ? u'%' + record : u'*' + ModZlib::CompressString(record);
}

class Attack
{
public:
    Attack(unsigned seed, qsizetype pendingBound)
        : m_random(seed)
        , m_ring(pendingBound)
    {
    }

    void run(int steps)
    {
        for (int step = 0; step < steps && !testing::Test::HasFailure(); ++step) {
            SCOPED_TRACE(step);
            act(int(below(1000)));
            compareState();
            compareSlot(qint16(below(50)), step % 10 == 0);
            for (qint16 slot = 0; step % 500 == 0 && slot < 50; ++slot)
                compareSlot(slot, true);
        }
    }

private:
    quint32 below(quint32 bound) { return quint32(m_random() % bound); }

    void act(int choice)
    {
        if (choice < 350) {
            const UndoRecord record = anyRecord();
            m_ring.StoreUndoSnapshot(record);
            m_tape.push(joined(record));
        } else if (choice < 600) {
            const bool isMoved = m_tape.back();
            EXPECT_EQ(m_ring.UndoStepBack(),
                      isMoved ? std::optional(m_tape.current()) : std::nullopt);
        } else if (choice < 780) {
            const bool isMoved = m_tape.forward();
            EXPECT_EQ(m_ring.RedoStepForward(),
                      isMoved ? std::optional(m_tape.current()) : std::nullopt);
        } else if (choice < 810) {
            const QString text = anyText();
            m_ring.ResetUndoBase(text);
            m_tape.setBase(joined({text, 0, 0}));
        } else if (choice == 999 && below(5) == 0) {
            m_ring.ClearUndoHistory();
            m_tape.clear();
        } else {
            const bool isPending = m_ring.encodePending(1 + below(3000));
            EXPECT_EQ(isPending, m_ring.isEncodingPending());
        }
    }

    void compareState()
    {
        ASSERT_EQ(m_ring.unsoundness(), QString());
        ASSERT_EQ(u"%1 %2 %3 %4"_s.arg(m_ring.UndoOldest())
                      .arg(m_ring.UndoCurrent())
                      .arg(m_ring.UndoNewest())
                      .arg(m_ring.UndoWrapped()),
                  m_tape.indices());
        ASSERT_EQ(m_ring.CanUndo(), m_tape.canGoBack());
        ASSERT_EQ(m_ring.CanRedo(), m_tape.canGoForward());
    }

    void compareSlot(qint16 slot, bool withEncoding)
    {
        const QString expected = m_tape.record(slot);
        ASSERT_EQ(m_ring.FetchUndoSnapshot(slot), expected) << slot;
        if (withEncoding) {
            ASSERT_EQ(m_ring.UndoSlots(slot), encoded(expected)) << slot;
        }
    }

    UndoRecord anyRecord() { return {anyText(), qint32(below(5000)), qint32(below(5000))}; }

    // Often the last text with a change in it, else a new one; now and then
    // outside the code page or with a separator in it.
    QString anyText()
    {
        if (m_text.isEmpty() || below(3) == 0)
            m_text = newText();
        else
            change(m_text);
        if (!m_text.isEmpty() && below(16) == 0)
            m_text[place() % m_text.size()] = u'Ω';
        return below(20) == 0 ? m_text + UndoRecordSeparator.toString() : m_text;
    }

    void change(QString &text)
    {
        const qsizetype start = place();
        const qsizetype removed = below(30);
        text.replace(start, removed, QString::number(m_random()));
    }

    // Short, long, and often within a few characters of the length that is
    // compressed.
    QString newText()
    {
        const quint32 lengths[] = {below(100), 360 + below(40), 360 + below(40), below(2500)};
        const QString line = u"IF TEMP%1 > %2 THEN FAN = ON\r\n"_s.arg(below(99)).arg(m_random());
        const auto length = qsizetype(lengths[below(4)]);
        return line.repeated(length / line.size() + 1).first(length);
    }

    qsizetype place() { return qsizetype(below(quint32(m_text.size()) + 1)); }

    std::mt19937 m_random;
    UndoStore m_ring;
    UndoTape m_tape;
    QString m_text;
};

} // namespace

class UndoStoreAttack : public testing::TestWithParam<unsigned>
{
};

TEST_P(UndoStoreAttack, AgreesWithATape)
{
    SCOPED_TRACE(testing::Message() << "seed " << GetParam());
    Attack(GetParam(), 1'000'000).run(25'000);
}

TEST_P(UndoStoreAttack, AgreesWithATapeWhenLittleMayWait)
{
    SCOPED_TRACE(testing::Message() << "seed " << GetParam());
    Attack(GetParam(), 8'000).run(25'000);
}

INSTANTIATE_TEST_SUITE_P(Seeds, UndoStoreAttack, testing::ValuesIn(randomSeeds({1U, 20240611U})));
