// What the tree hands to the vocabulary that its thread's editors share.

#include "editor/rules/language/CodeWordList.h"
#include "editor/rules/language/Vocabulary.h"
#include "shared/points/HostForms.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"

#include <ORVTListview/Error.h>
#include <ORVTListview/ORVTreeview.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class TreeVocabularyTest : public WidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void collectionsAreKeptByReference()
    {
        PointList variables, constants, inputs, outputs, nvis;
        ORVTreeview tree;
        tree.SetCollectionRenamable(&tree, &variables, &constants, &inputs, &outputs, &nvis);
        const Vocabulary::Collections &kept = threadPart<Vocabulary>().collections();
        QCOMPARE(kept.variables.get(), &variables);
        QCOMPARE(kept.constants.get(), &constants);
        QCOMPARE(kept.inputs.get(), &inputs);
        QCOMPARE(kept.outputs.get(), &outputs);
        QCOMPARE(kept.nvis.get(), &nvis);
        QCOMPARE(threadPart<HostForms>().pointOwner.data(), &tree);

        variables.Add(u"Later"_s);
        QCOMPARE(threadPart<Vocabulary>().classify(u"later").wordClass, WordClass::Variable);
    }

    void settingCollectionsAgainReplacesThem()
    {
        PointList first, second;
        ORVTreeview tree;
        tree.SetCollectionRenamable(nullptr, &first, &first, &first, &first, &first);
        ORVTreeview other;
        other.SetCollectionRenamable(nullptr, &second, nullptr, nullptr, nullptr, nullptr);
        QCOMPARE(threadPart<Vocabulary>().collections().variables.get(), &second);
        QCOMPARE(threadPart<Vocabulary>().collections().inputs.get(), nullptr);
    }

    void aFormMayGo()
    {
        ORVTreeview tree;
        {
            QWidget form;
            tree.SetCollectionRenamable(&form, nullptr, nullptr, nullptr, nullptr, nullptr);
        }
        QVERIFY(threadPart<HostForms>().pointOwner.isNull());
    }

    void indexedNamesReachListAndIndexAtOnce()
    {
        IndexedNameList names;
        names.Add(u"Tmp"_s, u"00"_s, 1, 3);
        ORVTreeview tree;
        tree.setStringIndexCollection(&names);
        QCOMPARE(threadPart<Vocabulary>().IndexedNameList().text(), u"|Tmp01|Tmp02|Tmp03|"_s);
        QVERIFY(threadPart<CodeWordList>().FindInWordList(u"tmp02", true));

        IndexedNameList empty;
        tree.setStringIndexCollection(&empty);
        QCOMPARE(threadPart<Vocabulary>().IndexedNameList().text(), u"|"_s);
        QVERIFY(!threadPart<CodeWordList>().FindInWordList(u"tmp02", true));
    }

    void tooManyIndexedNamesRaise()
    {
        IndexedNameList names;
        names.Add(u"Tmp"_s, u"0"_s, 0, 100'000);
        ORVTreeview tree;
        QVERIFY_THROWS_EXCEPTION(Error, tree.setStringIndexCollection(&names));
        QCOMPARE(threadPart<Vocabulary>().IndexedNameList().text(), u"|"_s);
    }

    void sqrtSupportIsShared()
    {
        ORVTreeview tree;
        tree.setIsSqrtSupported(u"true"_s);
        QVERIFY(threadPart<Vocabulary>().FunctionWordList().contains(u"SQRT"));
        QVERIFY_THROWS_EXCEPTION(Error, tree.setIsSqrtSupported(u"x"_s));
        QVERIFY(threadPart<Vocabulary>().FunctionWordList().contains(u"SQRT"));
    }
};

ORVT_TEST(TreeVocabularyTest)
#include "TreeVocabularyTest.moc"
