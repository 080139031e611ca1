// Access keys of what the library shows, in every language delivered.

#include "base/ThreadState.h"
#include "shared/texts/AccessKeys.h"
#include "shared/texts/TextTable.h"
#include "support/QtPrinters.h"
#include <ORVTListview/TranslatedTexts.h>

#include <QtCore/QSet>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// In the order of the dialog; "Replace" and "..." are the same button's.
const QStringList replaceMode{
    u"Find What"_s,   u"Replace With"_s,         u"Find Next"_s, u"Close"_s, u"Replace"_s,
    u"Replace All"_s, u"Find Whole Word Only"_s, u"Match Case"_s};
const QStringList findMode{
    u"Find What"_s, u"Find Next"_s, u"Close"_s, u"..."_s, u"Find Whole Word Only"_s,
    u"Match Case"_s};
const QStringList bothModes = replaceMode + QStringList{u"..."_s};
const QStringList menu{u"Undo"_s,  u"Redo"_s,   u"Cut"_s,       u"Copy"_s,
                       u"Paste"_s, u"Delete"_s, u"Select All"_s};

class DialogKeys : public testing::TestWithParam<const char *>
{
protected:
    DialogKeys() { setTextProvider(&m_texts); }

    void expectAKeyForEach(const QStringList &texts)
    {
        QStringList captions;
        for (const QString &text : texts)
            captions << Localise(text);
        const QStringList keyed = withAccessKeys(captions);
        QSet<QChar> keys;
        for (qsizetype i = 0; i < captions.size(); ++i) {
            EXPECT_EQ(QString(keyed[i]).remove(u'&'), captions[i]);
            if (texts[i] == u"...") { // dots are no keys
                EXPECT_EQ(keyed[i], captions[i]);
                continue;
            }
            EXPECT_EQ(keyed[i].count(u'&'), 1) << keyed[i].toStdString();
            keys << keyed[i][keyed[i].indexOf(u'&') + 1].toUpper();
        }
        EXPECT_EQ(keys.size(), captions.size() - captions.count(Localise(u"..."_s)))
            << keyed.join(u' ').toStdString();
    }

private:
    ThreadState::Fresh m_fresh;
    TranslatedTexts m_texts{QLocale(QString::fromLatin1(GetParam()))};
};

} // namespace

TEST_P(DialogKeys, EveryCaptionHasItsOwn)
{
    for (const QStringList &captions : {findMode, replaceMode, bothModes, menu})
        expectAKeyForEach(captions);
}

TEST_P(DialogKeys, AreLettersThatEveryKeyboardHas)
{
    for (const QStringList &texts : {replaceMode, menu}) {
        QStringList captions;
        for (const QString &text : texts)
            captions << Localise(text);
        for (const QString &caption : withAccessKeys(captions)) {
            const QChar key = caption[caption.indexOf(u'&') + 1].toUpper();
            EXPECT_TRUE(key >= u'A' && key <= u'Z') << caption.toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Delivered, DialogKeys, testing::Values("en", "de", "es", "fr"),
                         [](const auto &test) { return std::string(test.param); });

TEST(DialogKeys, InEnglishAreTheFirstThatSuggestThemselves)
{
    EXPECT_EQ(withAccessKeys(replaceMode).join(u'|'),
              u"&Find What|&Replace With|Find &Next|&Close|R&eplace|Replace &All|Find &Whole Word "
              "Only|&Match Case"_s);
}
