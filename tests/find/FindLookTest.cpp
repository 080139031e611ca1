// The find dialog's sizes, and that its texts fit in every language.

#include "find/FindFixture.h"
#include "shared/texts/TextTable.h"
#include "support/PseudoTexts.h"
#include "support/ShownTexts.h"
#include "support/TestProgram.h"
#include "support/WidgetTest.h"
#include "widgets/look/Twips.h"
#include <ORVTListview/TranslatedTexts.h>

#include <QtCore/QSet>
#include <QtCore/QtMath>
#include <QtWidgets/QStyleOption>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

bool isCaption(const QWidget &widget)
{
    return qobject_cast<const QLabel *>(&widget) || qobject_cast<const QAbstractButton *>(&widget);
}

QString captionOf(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    return label ? label->text() : qobject_cast<const QAbstractButton *>(&widget)->text();
}

QList<QWidget *> shownControls(const QWidget &dialog)
{
    QList<QWidget *> shown;
    for (QWidget *widget : dialog.findChildren<QWidget *>()) {
        const bool isControl = isCaption(*widget) || qobject_cast<QComboBox *>(widget);
        if (isControl && widget->isVisible())
            shown << widget;
    }
    return shown;
}

// How wide a caption is drawn where it has all the room it wants.
int drawnWidth(const QWidget &control)
{
    QLabel copy;
    QLabel buddy; // without one the mark would be drawn
    copy.setBuddy(&buddy);
    copy.setText(captionOf(control));
    copy.setFont(control.font());
    copy.resize(copy.sizeHint() * 2);
    const QImage image = copy.grab().toImage();
    const QRgb ground = image.pixel(image.width() - 1, 0);
    for (int x = image.width() - 1; x >= 0; --x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixel(x, y) != ground)
                return qCeil((x + 1) / image.devicePixelRatio());
        }
    }
    return 0;
}

int roomForCaption(const QWidget &control)
{
    const QStyle &style = *control.style();
    if (const auto *button = qobject_cast<const QPushButton *>(&control)) {
        QStyleOptionButton option;
        option.initFrom(button);
        return style.subElementRect(QStyle::SE_PushButtonContents, &option, button).width();
    }
    if (const auto *box = qobject_cast<const QCheckBox *>(&control)) {
        QStyleOptionButton option;
        option.initFrom(box);
        return style.subElementRect(QStyle::SE_CheckBoxContents, &option, box).width();
    }
    return control.contentsRect().width();
}

QRect placeIn(const QWidget &dialog, const QWidget &widget)
{
    return {widget.mapTo(&dialog, QPoint()), widget.size()};
}

void checkFit(const QWidget &dialog)
{
    const QList<QWidget *> controls = shownControls(dialog);
    QVERIFY(controls.size() >= 7);
    for (const QWidget *control : controls) {
        const QString name = control->objectName();
        const QSize needed = isCaption(*control) ? control->sizeHint() : control->minimumSizeHint();
        QVERIFY2(control->width() >= needed.width(), qPrintable(name));
        QVERIFY2(!isCaption(*control) || roomForCaption(*control) >= drawnWidth(*control),
                 qPrintable(name));
        QVERIFY2(control->height() >= needed.height(), qPrintable(name));
        QVERIFY2(dialog.rect().contains(placeIn(dialog, *control)), qPrintable(name));
        for (const QWidget *other : controls) {
            QVERIFY2(other == control ||
                         !placeIn(dialog, *control).intersects(placeIn(dialog, *other)),
                     qPrintable(name + u" and "_s + other->objectName()));
        }
    }
}

void checkKeys(const QWidget &dialog)
{
    QSet<QChar> keys;
    for (const QWidget *control : shownControls(dialog)) {
        if (!isCaption(*control))
            continue;
        const QString caption = captionOf(*control);
        const bool hasLetter = std::any_of(caption.begin(), caption.end(),
                                           [](QChar c) { return c.isLetterOrNumber(); });
        QCOMPARE(caption.count(u'&'), hasLetter ? 1 : 0);
        if (!hasLetter)
            continue;
        const QChar key = caption[caption.indexOf(u'&') + 1].toUpper();
        QVERIFY2(!keys.contains(key), qPrintable(caption));
        keys << key;
    }
}

} // namespace

class FindLookTest : public WidgetTest
{
    Q_OBJECT

private:
    static int frameTop(FindHost &host)
    {
        return placeIn(host.dialog(), host.control<QFrame>("Frame1")).top();
    }
    static int heightAboveStatus(FindHost &host)
    {
        return host.dialog().height() - host.control<QStatusBar>("StatusBar1").height();
    }
    static void everyLanguage()
    {
        QTest::addColumn<QLocale>("language");
        for (const QLocale &language : TranslatedTexts::availableLanguages())
            QTest::newRow(qPrintable(language.name())) << language;
    }

private Q_SLOTS:
    void heightsAreThoseOfTheMode()
    {
        FindHost host;
        host.open(u""_s);
        const auto pixels = [&host](int twips) { return Twips::toPixelsY(twips, host.dialog()); };
        QCOMPARE(frameTop(host), pixels(500));
        QCOMPARE(heightAboveStatus(host), pixels(2100));
        host.replace();
        QCOMPARE(frameTop(host), pixels(1000));
        QCOMPARE(heightAboveStatus(host), pixels(2600));
        host.reopen();
        QCOMPARE(frameTop(host), pixels(500));
        QCOMPARE(heightAboveStatus(host), pixels(2100));
    }

    void aLargerFontMakesThemLarger()
    {
        FindHost host;
        host.open(u""_s, FindHost::Replace);
        const int top = frameTop(host);
        const int height = heightAboveStatus(host);
        const QFont usual = host.dialog().font();
        QFont large = usual;
        large.setPointSizeF(4 * usual.pointSizeF());
        host.dialog().setFont(large);
        QApplication::processEvents();
        QVERIFY(frameTop(host) > top);
        QVERIFY(heightAboveStatus(host) > height);
        checkFit(host.dialog());
        host.dialog().setFont(usual);
        QApplication::processEvents();
        QCOMPARE(frameTop(host), top);
        QCOMPARE(heightAboveStatus(host), height);
    }

    void theUserMayMakeItWiderOnly()
    {
        FindHost host;
        host.open(u""_s);
        QCOMPARE(host.dialog().minimumHeight(), host.dialog().maximumHeight());
        host.dialog().resize(700, 10);
        QApplication::processEvents();
        QCOMPARE(host.dialog().width(), 700);
        host.replace();
        QCOMPARE(host.dialog().width(), 700);
        host.reopen(FindHost::Replace);
        QCOMPARE(host.dialog().width(), 700);
    }

    void widthsAreThoseOfBothModes()
    {
        FindHost host;
        host.open(u""_s);
        const int least = host.dialog().minimumWidth();
        host.replace();
        QCOMPARE(host.dialog().minimumWidth(), least);
    }

    void aLongHistoryStretchesNothing()
    {
        FindHost host;
        host.open(u""_s);
        const int least = host.dialog().minimumWidth();
        host.histories().searched.add(QString(500, u'w'));
        host.reopen();
        QCOMPARE(host.dialog().minimumWidth(), least);
    }

    void textsFitInEveryLanguage_data() { everyLanguage(); }
    void textsFitInEveryLanguage()
    {
        QFETCH(const QLocale, language);
        TranslatedTexts texts(language);
        setTextProvider(&texts);
        FindHost host;
        for (const double size : {1.0, 1.4, 2.0, 3.0}) {
            QFont font = QApplication::font();
            font.setPointSizeF(size * font.pointSizeF());
            host.dialog().setFont(font);
            for (const auto mode : {FindHost::Find, FindHost::Replace}) {
                host.open(u""_s, mode);
                host.dialog().resize(host.dialog().minimumSize());
                QApplication::processEvents();
                checkFit(host.dialog());
            }
        }
    }

    void resultsFitInEveryLanguage_data() { everyLanguage(); }
    void resultsFitInEveryLanguage()
    {
        QFETCH(const QLocale, language);
        TranslatedTexts texts(language);
        setTextProvider(&texts);
        FindHost host;
        host.open(u"x"_s, FindHost::Replace);
        host.dialog().resize(host.dialog().minimumSize());
        QString many(99'999 * 2, u'\r');
        for (qsizetype i = 1; i < many.size(); i += 2)
            many[i] = u'\n';
        host.list->setCodeText(many + QString(9'999, u'x') + u'y');
        host.reopen(FindHost::Replace);
        const auto &bar = host.control<QStatusBar>("StatusBar1");
        const auto fits = [&] {
            return bar.fontMetrics().horizontalAdvance(bar.currentMessage()) + 12 <= bar.width();
        };
        host.enter(u"y"_s, u"z"_s);
        host.findNext();
        QVERIFY(host.status().contains(u"100000"_s) && host.status().contains(u"10000"_s));
        QVERIFY(fits());
        host.findNext();
        QVERIFY(fits());
        host.combo(0).setEditText(u"\n"_s);
        host.replaceAll();
        QVERIFY2(host.status().contains(u"50000"_s), qPrintable(host.status()));
        QVERIFY(fits());
    }

    void accessKeysDoNotClashInAnyLanguage_data() { everyLanguage(); }
    void accessKeysDoNotClashInAnyLanguage()
    {
        QFETCH(const QLocale, language);
        TranslatedTexts texts(language);
        setTextProvider(&texts);
        FindHost host;
        for (const auto mode : {FindHost::Find, FindHost::Replace}) {
            host.open(u""_s, mode);
            checkKeys(host.dialog());
            QCOMPARE(host.button(0).text().remove(u'&'), Localise(u"Find Next"_s));
            QCOMPARE(host.option(1).text().remove(u'&'), Localise(u"Match Case"_s));
        }
    }

    void everyTextIsLookedUp()
    {
        PseudoTexts pseudo;
        setTextProvider(&pseudo);
        FindHost host;
        host.open(u"|x a"_s);
        QCOMPARE(shownWithoutLookup(host.dialog()), QStringList());
        host.enter(0, u"a"_s);
        host.findNext();
        QCOMPARE(shownWithoutLookup(host.dialog()), QStringList());
        host.findNext();
        host.replace();
        QCOMPARE(shownWithoutLookup(host.dialog()), QStringList());
        host.replaceAll();
        QCOMPARE(shownWithoutLookup(host.dialog()), QStringList());
    }

    void theLanguageMayChangeWhileItIsShown()
    {
        TranslatedTexts texts(QLocale(u"en"_s));
        setTextProvider(&texts);
        FindHost host;
        host.open(u"a"_s, FindHost::Replace);
        host.enter(u"one"_s, u"two"_s);
        host.click(host.option(0));
        texts.setLanguage(QLocale(u"de"_s));
        host.list->ReInitializeStrings(); // the host knows the component only
        QCOMPARE(host.dialog().windowTitle(), u"Ersetzen"_s);
        QCOMPARE(host.button(1).text().remove(u'&'), u"Schließen"_s);
        QCOMPARE(host.combo(0).currentText(), u"one"_s);
        QCOMPARE(host.combo(1).currentText(), u"two"_s);
        QVERIFY(host.option(0).isChecked());
        checkFit(host.dialog());
    }

    void theResultFollowsTheLanguage()
    {
        TranslatedTexts texts(QLocale(u"en"_s));
        setTextProvider(&texts);
        FindHost host;
        host.open(u"one\ntwo"_s, FindHost::Replace);
        const auto speak = [&](const QString &language) {
            texts.setLanguage(QLocale(language));
            host.list->ReInitializeStrings();
            return host.status();
        };
        QCOMPARE(speak(u"de"_s), QString());
        host.enter(u"two"_s, u"three"_s);
        host.findNext();
        QCOMPARE(host.status(), u"Gefunden in Zeile 2, Spalte 1"_s);
        host.box().setSelStart(0); // what was found stays what it was
        QCOMPARE(speak(u"en"_s), u"Found in Row: 2, Col: 1"_s);
        QCOMPARE(speak(u"de"_s), u"Gefunden in Zeile 2, Spalte 1"_s);
        host.replaceAll();
        QCOMPARE(speak(u"en"_s), u"1 replace(s)!"_s);
        host.findNext();
        QCOMPARE(speak(u"de"_s), u"Nicht gefunden!"_s);
        host.reopen();
        QCOMPARE(speak(u"en"_s), QString());
    }

    void theDialogTakesAChangedLanguageByItself()
    {
        TranslatedTexts texts(QLocale(u"en"_s));
        setTextProvider(&texts);
        FindHost host;
        host.open(u"a"_s);
        texts.setLanguage(QLocale(u"es"_s));
        host.dialog().ReInitializeStrings();
        QCOMPARE(host.button(1).text().remove(u'&'), u"Cerrar"_s);
    }

    void theNextOpeningSpeaksTheLanguageInForce()
    {
        TranslatedTexts texts(QLocale(u"fr"_s));
        FindHost host;
        host.open(u"a"_s);
        QCOMPARE(host.dialog().windowTitle(), u"Find"_s);
        setTextProvider(&texts);
        host.reopen();
        QCOMPARE(host.dialog().windowTitle(), Localise(u"Find"_s));
        QVERIFY(host.dialog().windowTitle() != u"Find"_s);
    }
};

ORVT_TEST(FindLookTest)
#include "FindLookTest.moc"
