#include "shared/texts/TextTable.h"
#include "base/ThreadState.h"
#include "shared/texts/TextRoutine.h"
#include "support/QtPrinters.h"

#include <QtCore/QLoggingCategory>

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QDateTime atMinute(int minute)
{
    return QDateTime(QDate(2024, 5, 6), QTime(7, minute), Qt::UTC);
}

enum class Fails { Nowhere, ChangeTime, GetTexts, DisplayFont };

class Provider final : public TextProvider
{
public:
    QDateTime ChangeTime() override
    {
        if (fails == Fails::ChangeTime)
            throw std::runtime_error("no change time");
        return changeTime;
    }

    TextCollection GetTexts(const QString &Component) override
    {
        components << Component;
        if (fails == Fails::GetTexts)
            throw 42; // not every host throws exceptions of the standard library
        return texts;
    }

    DisplayFontSettings DisplayFont() override
    {
        if (fails == Fails::DisplayFont)
            throw std::runtime_error("no font");
        return font;
    }

    QDateTime changeTime = atMinute(0);
    TextCollection texts{{u"LABEL"_s, u"Name"_s}, {u"VALUE"_s, u"Wert"_s}};
    DisplayFontSettings font;
    Fails fails = Fails::Nowhere;
    QStringList components; // of each fetch
};

class TextTableTest : public testing::Test
{
protected:
    TextTableTest()
    {
        table.setClock([this] { return now; });
        table.setProvider(provider.get());
    }

    ThreadState::Fresh fresh;
    std::unique_ptr<Provider> provider = std::make_unique<Provider>();
    QDateTime now = atMinute(10);
    TextTable table;
};

} // namespace

TEST_F(TextTableTest, IsEmptyBeforeTheFirstRefresh)
{
    EXPECT_FALSE(table.loadTime().isValid());
    EXPECT_EQ(table.localise(u"Label"_s), u"Label"_s);
    EXPECT_EQ(provider->components, QStringList());
}

TEST_F(TextTableTest, TheFirstRefreshFetchesTheLibrarysTexts)
{
    table.refresh();
    EXPECT_EQ(provider->components, QStringList{u"ORVTListview"_s});
    EXPECT_EQ(table.loadTime(), atMinute(10));
    EXPECT_EQ(table.localise(u"Label"_s), u"Name"_s);
}

TEST_F(TextTableTest, TheFirstRefreshFetchesEvenTextsThatChangedLongAgoOrNever)
{
    provider->changeTime = QDateTime();
    table.refresh();
    EXPECT_EQ(table.localise(u"Label"_s), u"Name"_s);
    table.refresh();
    EXPECT_EQ(provider->components.size(), 1);
}

TEST_F(TextTableTest, TwoRefreshesWithoutAChangeFetchOnce)
{
    table.refresh();
    now = atMinute(11);
    table.refresh();
    EXPECT_EQ(provider->components.size(), 1);
    EXPECT_EQ(table.loadTime(), atMinute(10));
}

TEST_F(TextTableTest, AChangeAfterTheLoadTimeIsFetched)
{
    table.refresh();
    provider->texts = {{u"LABEL"_s, u"Nom"_s}};
    provider->changeTime = atMinute(11);
    EXPECT_EQ(table.localise(u"Label"_s), u"Name"_s);

    now = atMinute(12);
    table.refresh();
    EXPECT_EQ(table.localise(u"Label"_s), u"Nom"_s);
    EXPECT_EQ(table.localise(u"Value"_s), u"Value"_s);
    EXPECT_EQ(table.loadTime(), atMinute(12));

    table.refresh();
    EXPECT_EQ(provider->components.size(), 2);
}

TEST_F(TextTableTest, AChangeAtOrBeforeTheLoadTimeIsNotFetched)
{
    table.refresh();
    for (const QDateTime &changed : {atMinute(10), atMinute(9)}) {
        provider->changeTime = changed;
        table.refresh();
    }
    EXPECT_EQ(provider->components.size(), 1);
}

TEST_F(TextTableTest, TimesInDifferentZonesAreComparedAsTimes)
{
    table.refresh();
    provider->changeTime = atMinute(9).toOffsetFromUtc(3 * 3600); // later by the clock on the wall
    table.refresh();
    EXPECT_EQ(provider->components.size(), 1);
}

TEST_F(TextTableTest, BlanksAroundATextAndItsLetterCaseAreIgnored)
{
    table.refresh();
    for (const QString &text : {u"Label"_s, u" Label "_s, u"LABEL"_s, u"label  "_s})
        EXPECT_EQ(table.localise(text), u"Name"_s) << text.toStdString();
}

TEST_F(TextTableTest, OnlyBlanksAreTrimmed)
{
    table.refresh();
    EXPECT_EQ(table.localise(u"\tLabel"_s), u"\tLabel"_s);
    EXPECT_EQ(table.localise(u"Lab el"_s), u"Lab el"_s);
}

TEST_F(TextTableTest, AMissingTextComesBackExactlyAsGiven)
{
    table.refresh();
    for (const QString &text : {u"  Setpoint "_s, u"setPOINT"_s, u" "_s, u""_s, u"#"_s})
        EXPECT_EQ(table.localise(text), text);
}

TEST(TextTable, WithoutAProviderEveryTextComesBackExactlyAsGiven)
{
    TextTable table;
    table.refresh();
    EXPECT_TRUE(table.loadTime().isValid());
    for (const QString &text : {u"  Label "_s, u"Label"_s, u"#"_s, u""_s})
        EXPECT_EQ(table.localise(text), text);
    EXPECT_EQ(table.displayFont(), DisplayFontSettings());
}

TEST_F(TextTableTest, ATranslationIsReturnedAsTheProviderWroteIt)
{
    provider->texts = {{u"LABEL"_s, u" Name "_s}, {u"VALUE"_s, u""_s}, {u"#"_s, u"Nr."_s}};
    table.refresh();
    EXPECT_EQ(table.localise(u"Label"_s), u" Name "_s);
    EXPECT_EQ(table.localise(u"Value"_s), u""_s);
    EXPECT_EQ(table.localise(u"#"_s), u"Nr."_s);
}

TEST_F(TextTableTest, AFailingChangeTimeLeavesEnglishUntilItWorksAgain)
{
    table.refresh();
    provider->fails = Fails::ChangeTime;
    table.refresh();
    EXPECT_EQ(table.localise(u"Label"_s), u"Label"_s);

    provider->fails = Fails::Nowhere;
    table.refresh();
    EXPECT_EQ(table.localise(u"Label"_s), u"Name"_s);
}

TEST_F(TextTableTest, AFailingFetchLeavesEnglishUntilItWorksAgain)
{
    table.refresh();
    provider->fails = Fails::GetTexts;
    provider->changeTime = atMinute(11);
    table.refresh();
    EXPECT_EQ(table.localise(u"Label"_s), u"Label"_s);
    EXPECT_FALSE(table.loadTime().isValid());

    provider->fails = Fails::Nowhere;
    table.refresh();
    EXPECT_EQ(table.localise(u"Label"_s), u"Name"_s);
}

TEST_F(TextTableTest, AChangeDuringTheFetchIsSeenByTheNextRefresh)
{
    class ChangesWhileFetched final : public TextProvider
    {
    public:
        explicit ChangesWhileFetched(QDateTime &clock)
            : m_clock(clock)
        {
        }
        QDateTime ChangeTime() override { return m_changed; }
        TextCollection GetTexts(const QString &) override
        {
            const QString text = m_changed.isValid() ? u"new"_s : u"old"_s;
            m_clock = m_clock.addSecs(1);
            m_changed = m_clock;
            m_clock = m_clock.addSecs(1);
            return {{u"LABEL"_s, text}};
        }

    private:
        QDateTime &m_clock;
        QDateTime m_changed;
    };
    ChangesWhileFetched changing(now);
    table.setProvider(&changing);
    table.refresh();
    EXPECT_EQ(table.localise(u"Label"_s), u"old"_s);
    table.refresh();
    EXPECT_EQ(table.localise(u"Label"_s), u"new"_s);
}

TEST_F(TextTableTest, ADestroyedProviderCountsAsNoneFromTheNextRefreshOn)
{
    table.refresh();
    provider.reset();
    EXPECT_EQ(table.localise(u"Label"_s), u"Name"_s);
    EXPECT_EQ(table.displayFont(), DisplayFontSettings());
    table.refresh();
    EXPECT_EQ(table.localise(u"Label"_s), u"Label"_s);
}

TEST_F(TextTableTest, AProviderDestroyedBeforeTheFirstRefreshCountsAsNone)
{
    provider.reset();
    table.refresh();
    EXPECT_EQ(table.localise(u"Label"_s), u"Label"_s);
}

TEST_F(TextTableTest, AnotherProviderIsFetchedWhateverItsChangeTime)
{
    table.refresh();
    Provider other;
    other.changeTime = atMinute(1);
    other.texts = {{u"LABEL"_s, u"Etiqueta"_s}};
    table.setProvider(&other);
    table.refresh();
    EXPECT_EQ(table.localise(u"Label"_s), u"Etiqueta"_s);
    table.setProvider(nullptr);
    table.refresh();
    EXPECT_EQ(table.localise(u"Label"_s), u"Label"_s);
}

TEST_F(TextTableTest, TheDisplayFontIsTheProvidersOrNone)
{
    EXPECT_EQ(table.displayFont(), DisplayFontSettings());
    provider->font = {u"Noto Sans"_s, 12};
    EXPECT_EQ(table.displayFont(), (DisplayFontSettings{u"Noto Sans"_s, 12}));
    provider->fails = Fails::DisplayFont;
    EXPECT_EQ(table.displayFont(), DisplayFontSettings());
}

TEST_F(TextTableTest, TheThreadsTableServesLocalise)
{
    EXPECT_EQ(Localise(u" Label "_s), u" Label "_s);
    setTextProvider(provider.get());
    EXPECT_EQ(Localise(u" Label "_s), u"Name"_s);
    EXPECT_EQ(provider->components.size(), 1);
    setTextProvider(nullptr);
    EXPECT_EQ(Localise(u" Label "_s), u" Label "_s);
}

TEST_F(TextTableTest, GivingAProviderThatFailsIsNoError)
{
    provider->fails = Fails::GetTexts;
    EXPECT_NO_THROW(setTextProvider(provider.get()));
    EXPECT_EQ(Localise(u"Label"_s), u"Label"_s);
}

namespace {

QStringList loggedTexts;

void keepMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    EXPECT_EQ(type, QtDebugMsg);
    loggedTexts << QString::fromLatin1(context.category) + u": "_s + message;
}

// What is logged about texts while one of these lives.
class KeptLog final
{
public:
    explicit KeptLog(const QString &rules)
        : m_before(qInstallMessageHandler(keepMessage))
    {
        loggedTexts.clear();
        QLoggingCategory::setFilterRules(rules);
    }
    ~KeptLog()
    {
        QLoggingCategory::setFilterRules(QString());
        qInstallMessageHandler(m_before);
    }
    Q_DISABLE_COPY_MOVE(KeptLog)

private:
    QtMessageHandler m_before;
};

} // namespace

TEST(TextRoutine, AFailureIsLoggedUnderItsLabelForThoseWhoAsk)
{
    const KeptLog log(u"orvtlistview.texts.debug=true"_s);
    EXPECT_TRUE(runTextRoutine(TextRoutine::findDialog, [] {}));
    EXPECT_FALSE(
        runTextRoutine(TextRoutine::listView, [] { throw std::runtime_error("out of order"); }));
    EXPECT_FALSE(runTextRoutine(TextRoutine::lookup, [] { throw 42; }));
    EXPECT_EQ(loggedTexts,
              QStringList({u"orvtlistview.texts: InitStrings ORVListView out of order"_s,
                           u"orvtlistview.texts: Messages GetStrings unknown failure"_s}));
}

TEST(TextRoutine, NothingIsLoggedByDefault)
{
    const KeptLog log{QString()};
    EXPECT_FALSE(runTextRoutine(TextRoutine::richText, [] { throw std::runtime_error("x"); }));
    EXPECT_EQ(loggedTexts, QStringList());
}

TEST(TextRoutine, LabelsAreThePublishedOnes)
{
    EXPECT_EQ(TextRoutine::listView, "InitStrings ORVListView"_L1);
    EXPECT_EQ(TextRoutine::dataCombo, "InitStrings ORVDataCombo"_L1);
    EXPECT_EQ(TextRoutine::findDialog, "InitStrings fFind"_L1);
    EXPECT_EQ(TextRoutine::richText, "InitStrings ORVRichText"_L1);
    EXPECT_EQ(TextRoutine::lookup, "Messages GetStrings"_L1);
}
