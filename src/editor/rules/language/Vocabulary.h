#pragma once

#include "base/HouseExport.h"
#include "editor/rules/language/BarList.h"
#include "editor/rules/language/WordClass.h"
#include <ORVTListview/HostObject.h>
#include <ORVTListview/IndexedName.h>
#include <ORVTListview/PointCollection.h>

namespace ORVTListview {

// What a word is and how it is shown.
struct ClassifiedWord
{
    WordClass wordClass = WordClass::Other;
    QString shown;

    friend bool operator==(const ClassifiedWord &, const ClassifiedWord &) = default;
};

// The words of the controller language and the names of the project's points,
// shared by all editors of a thread. A change does not re-colour what is shown.
class ORVT_HOUSE_EXPORT Vocabulary
{
public:
    struct Collections
    {
        HostReference<PointCollection> variables;
        HostReference<PointCollection> constants;
        HostReference<PointCollection> inputs;
        HostReference<PointCollection> outputs;
        HostReference<PointCollection> nvis;
    };

    Vocabulary();

    static const BarList &KeywordList();
    static const BarList &TimeWordList();
    static const BarList &FanInWordList();
    const BarList &FunctionWordList() const { return m_functionWords; }
    const BarList &IndexedNameList() const { return m_indexedNames; }

    bool SqrtSupported() const { return m_sqrtSupported; }

    // Value is "true" or "false" in any letter case or a number. Raises Error
    // (TypeMismatch) and changes nothing for any other text.
    void setIsSqrtSupported(const QString &Value);

    // The function words without SQRT, whatever SqrtSupported says.
    void resetFunctionWords();

    const Collections &collections() const { return m_collections; }
    void setCollections(const Collections &collections) { m_collections = collections; }

    // Rebuilds IndexedNameList from the families; null counts as empty. Raises
    // Error and changes nothing when they cannot be read (HostPoints).
    void setIndexedNames(IndexedNameCollection *names);
    IndexedNameCollection *indexedNames() const { return m_indexedNameFamilies.get(); }

    // Class and shown spelling of one word, the blanks around it not counted.
    ClassifiedWord classify(QStringView word) const;

    // The same as a colour, 0 for none.
    Colour ClassifyWord(const QString &Word, QString &Shown,
                        const RichTextSettings &settings) const;

    // Whether the last word before the first "(" of the text is a function word.
    bool IsFunctionCall(const QString &Text) const;

private:
    BarList m_functionWords;
    BarList m_indexedNames;
    bool m_sqrtSupported = false;
    Collections m_collections;
    HostReference<IndexedNameCollection> m_indexedNameFamilies;
};

} // namespace ORVTListview
