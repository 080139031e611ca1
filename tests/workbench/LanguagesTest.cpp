#include "WorkbenchTest.h"
#include "support/TestProgram.h"
#include "support/TranslationFile.h"

#include <QtCore/QRegularExpression>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

class LanguagesTest : public WidgetTest
{
    Q_OBJECT

private:
    static QStringList titles(const WorkbenchWindow &workbench)
    {
        QStringList titles;
        for (const QMenu *menu : workbench.menus())
            titles.append(QString(menu->title()).remove(u'&'));
        return titles;
    }

    static void addLanguages()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : {u"de"_s, u"es"_s, u"fr"_s})
            QTest::addRow("%s", qPrintable(language)) << language;
    }

    static QList<TranslationMessage> textsOf(const QString &part, const QString &language)
    {
        return readTranslationFile(u"" ORVT_SOURCE_DIR "/translations/"_s + part + u'_' + language +
                                   u".ts"_s);
    }

    // As it is said, without its access key and what tells that a dialog opens.
    static QString bare(QString text) { return text.remove(u'&').remove(u'…').trimmed(); }

    static QStringList placeholders(const QString &text)
    {
        QStringList found;
        auto match = QRegularExpression(u"%\\d|\\*\\.json"_s).globalMatch(text);
        while (match.hasNext())
            found << match.next().captured();
        found.sort();
        return found;
    }

    // What is the same word in both languages.
    const QHash<QString, QStringList> sameAsEnglish{
        {u"de"_s,
         {u"Variable"_s, u"&Editor"_s, u"Text (*.txt)"_s, u"&Trend"_s, u"Trend"_s, u"Import"_s,
          u"%1: %2"_s}},
        {u"es"_s,
         {u"Variable"_s, u"Variables"_s, u"&Variables"_s, u"No"_s, u"&Editor"_s, u"Error"_s,
          u"%1: %2"_s}},
        {u"fr"_s,
         {u"Variable"_s, u"Variables"_s, u"&Variables"_s, u"Points"_s, u"P&oints"_s, u"Condition"_s,
          u"Point"_s}}};

private Q_SLOTS:
    void everyTextIsTranslated_data() { addLanguages(); }
    void everyTextIsTranslated()
    {
        QFETCH(QString, language);
        const QList<TranslationMessage> messages = textsOf(u"workbench"_s, language);
        QVERIFY(messages.size() > 50);
        for (const TranslationMessage &message : messages) {
            QVERIFY2(message.isFinished, qPrintable(message.source));
            QVERIFY2(!message.translation.isEmpty(), qPrintable(message.source));
            QCOMPARE(placeholders(message.translation), placeholders(message.source));
            QVERIFY2(message.translation.count(u'&') == message.source.count(u'&'),
                     qPrintable(message.source));
            QCOMPARE(message.translation == message.source,
                     sameAsEnglish[language].contains(message.source));
        }
    }

    // "Edit" is the menu's own title there, and the library's is a command.
    void theEditMenuAndTheFindDialogNameACommandAlike_data() { addLanguages(); }
    void theEditMenuAndTheFindDialogNameACommandAlike()
    {
        QFETCH(QString, language);
        QHash<QString, QString> ofLibrary;
        for (const TranslationMessage &message : textsOf(u"orvtlistview"_s, language))
            ofLibrary.insert(message.source, message.translation);
        QStringList shared;
        for (const TranslationMessage &message : textsOf(u"workbench"_s, language)) {
            const QString source = bare(message.source);
            if (!message.context.endsWith(u"EditMenu"_s) || source == u"Edit" ||
                !ofLibrary.contains(source))
                continue;
            shared << source;
            QCOMPARE(bare(message.translation), bare(ofLibrary[source]));
        }
        QVERIFY(shared.contains(u"Find Next"_s));
        QVERIFY(shared.contains(u"Find Previous"_s));
    }

    void theMenuChangesTheLanguage()
    {
        WorkbenchWindow workbench("Fan1 = ON");
        workbench.type(u"x"_s);
        QCOMPARE(titles(workbench),
                 QStringList({u"File"_s, u"Edit"_s, u"Program"_s, u"Points"_s, u"Controller"_s,
                              u"View"_s, u"Window"_s, u"Help"_s}));
        const QMenu *menu = workbench.window.findChild<LanguageMenu *>();
        QVERIFY(menu);
        const QList<QAction *> choices = menu->actions();
        QStringList names;
        for (const QAction *choice : choices)
            names << QString(choice->text()).remove(u'&');
        QCOMPARE(names, QStringList({u"English"_s, u"Deutsch"_s, u"Español"_s, u"Français"_s}));
        choices.at(1)->trigger();
        QTRY_COMPARE(titles(workbench),
                     QStringList({u"Datei"_s, u"Bearbeiten"_s, u"Programm"_s, u"Punkte"_s,
                                  u"Regelgerät"_s, u"Ansicht"_s, u"Fenster"_s, u"Hilfe"_s}));
        QCOMPARE(workbench.code().CodeText(), u"xFan1 = ON"_s);
        QVERIFY(workbench.window.isWindowModified());
        const QMenu *made = workbench.window.findChild<LanguageMenu *>();
        QVERIFY(made->actions().at(1)->isChecked());
        workbench.speak(QLocale(QLocale::English));
        QCOMPARE(titles(workbench).constFirst(), u"File"_s);
    }

    void anUnknownLanguageIsEnglish()
    {
        Languages languages{QLocale(QLocale::Japanese)};
        QCOMPARE(languages.language().language(), QLocale::English);
    }
};

ORVT_TEST(LanguagesTest)
#include "LanguagesTest.moc"
