// Every text that the code shows is in the list of texts, and thereby in every
// translation.

#include "support/SourceTexts.h"

#include "support/QtPrinters.h"
#include <ORVTListview/LibraryTexts.h>
#include <ORVTListview/TextProvider.h>

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QSet>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Source
{
    QString path; // below src/
    QString text;
};

QList<Source> sources()
{
    const QString root = u"" ORVT_SOURCE_DIR "/src/"_s;
    QList<Source> all;
    QDirIterator files(root, {u"*.cpp"_s, u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
        all.append({file.fileName().sliced(root.size()), QString::fromUtf8(file.readAll())});
    }
    return all;
}

bool isKnown(const QString &text)
{
    static const QSet<QString> keys = [] {
        QSet<QString> all;
        for (const LibraryText &known : libraryTexts())
            all << textKey(QString::fromLatin1(known.english));
        return all;
    }();
    return keys.contains(textKey(text));
}

} // namespace

TEST(SourceTexts, WhatIsLookedUpIsFound)
{
    const QString source = uR"cpp(
        label->setText(Localise(u"Close"_s) + u' '); // Localise(u"comment"_s)
        button(Localise(isReplace ? u"Replace"_s : u"Find"_s));
        show(Localise(QStringLiteral("a \"b\" (c) \\ d")), /* Localise(u"x"_s) */
             Localise(u"one "
                      "two"_s));
        Localise(displayName(type));
    )cpp"_s;
    EXPECT_EQ(lookedUpTexts(source), QStringList({u"Close"_s, u"Replace"_s, u"Find"_s,
                                                  u"a \"b\" (c) \\ d"_s, u"one two"_s}));
}

TEST(SourceTexts, WhatIsShownAsItIsIsFound)
{
    const QString source = uR"cpp(
        label->setText(u"Close"_s);
        box.setToolTip(Localise(u"fine"_s) + u"not fine"_s);
        service.show({Message::Icon::None, Localise(u"Paste"_s), u"Bad letter"_s});
        const Message message{Message::Icon::None, QString(), u"List"_s};
        auto *find = new QPushButton(QStringLiteral("Find"), this);
        menu.addAction(RichTextBox::tr("Cu&t"), this);
        label->setText(u"V"_s); box.setSelText(u"data"_s); // setText(u"comment"_s)
    )cpp"_s;
    EXPECT_EQ(textsShownAsTheyAre(source), QStringList({u"Bad letter"_s, u"Close"_s, u"Cu&t"_s,
                                                        u"Find"_s, u"List"_s, u"not fine"_s}));
}

TEST(SourceTexts, EveryTextLookedUpIsInTheList)
{
    int count = 0;
    for (const Source &source : sources()) {
        for (const QString &text : lookedUpTexts(source.text)) {
            EXPECT_TRUE(isKnown(text)) << source.path.toStdString() << ": " << text.toStdString();
            EXPECT_EQ(text, text.trimmed()) << "blanks are for the code to add";
            ++count;
        }
    }
    EXPECT_GE(count, 3);
}

TEST(SourceTexts, NoTextIsShownAsItIs)
{
    for (const Source &source : sources()) {
        // The general widgets know no list of texts; components give them theirs.
        if (source.path.startsWith(u"widgets/"_s))
            continue;
        EXPECT_EQ(textsShownAsTheyAre(source.text), QStringList()) << source.path.toStdString();
    }
}

TEST(SourceTexts, EveryColumnOfAPointTableIsInTheList)
{
    for (const Source &source : sources()) {
        if (!source.path.startsWith(u"pointtable/"_s) && !source.path.startsWith(u"listview/"_s))
            continue;
        for (const QString &text : allTexts(source.text)) {
            if (!text.startsWith(u"#|"_s) && !text.startsWith(u'|'))
                continue;
            for (const QString &field : text.split(u'|', Qt::SkipEmptyParts))
                EXPECT_TRUE(field == u"#"_s || isKnown(field)) << field.toStdString();
        }
    }
}

TEST(SourceTexts, EveryFailureOfUndoIsInTheList)
{
    for (const Source &source : sources()) {
        if (source.path != u"editor/rules/undo/UndoRecord.cpp"_s &&
            source.path != u"shared/compression/Compression.cpp"_s)
            continue;
        for (const QString &text : allTexts(source.text).filter(u" "_s))
            EXPECT_TRUE(isKnown(text)) << text.toStdString();
    }
}
