#pragma once

#include "widgets/combo/ImageCombo.h"
#include "widgets/look/Pictures.h"
#include <ORVTListview/ImageList.h>

#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtGui/QStyleHints>
#include <QtGui/QWheelEvent>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QStyleOptionComboBox>

#include <utility>

// Every event of a combo but drag and drop, as text, in order.
class ComboEvents : public QObject
{
public:
    explicit ComboEvents(ORVTListview::ImageCombo *combo)
    {
        using namespace ORVTListview;
        using namespace Qt::StringLiterals;
        const auto note = [this](const QString &event) { m_log.append(event); };
        connect(combo, &ImageCombo::Change, this,
                [note, combo] { note(u"Change "_s + combo->text()); });
        connect(combo, &ImageCombo::Click, this, [note, combo] {
            note(u"Click %1 %2"_s.arg(combo->selectedIndex()).arg(combo->text()));
        });
        connect(combo, &ImageCombo::DblClick, this, [note] { note(u"DblClick"_s); });
        connect(combo, &ImageCombo::KeyDown, this, [note](qint16 &code, qint16 &shift) {
            note(u"KeyDown %1 %2"_s.arg(code).arg(shift));
        });
        connect(combo, &ImageCombo::KeyPress, this,
                [note](qint16 &code) { note(u"KeyPress %1"_s.arg(code)); });
        connect(combo, &ImageCombo::KeyUp, this, [note](qint16 &code, qint16 &shift) {
            note(u"KeyUp %1 %2"_s.arg(code).arg(shift));
        });
    }

    bool isEmpty() const { return m_log.isEmpty(); }
    QString take() { return std::exchange(m_log, {}).join(QStringLiteral(", ")); }

private:
    QStringList m_log;
};

// A shown combo between two fields on a form, and a user who works with it through
// the window. Entries have keys "Key1", "Key2" and so on.
class ShownCombo
{
public:
    explicit ShownCombo(const QStringList &texts = {QStringLiteral("Temp1"),
                                                    QStringLiteral("Humidity"),
                                                    QStringLiteral("Temp10"),
                                                    QStringLiteral("OutTemp1")})
        : before(new QLineEdit(&form))
        , combo(new ORVTListview::ImageCombo(&form))
        , after(new QLineEdit(&form))
    {
        ORVTListview::Pictures::fillInto(images);
        combo->setImageList(&images);
        combo->setEntries(entriesOf(texts));
        form.resize(300, 140);
        before->setGeometry(20, 10, 200, 30);
        combo->setGeometry(20, 50, 200, 30);
        after->setGeometry(20, 90, 200, 30);
        form.show();
        form.activateWindow();
        if (!QTest::qWaitForWindowActive(&form))
            qFatal("the window does not become active");
        combo->setFocus();
        window = form.windowHandle();
    }

    static QList<ORVTListview::ComboEntry> entriesOf(const QStringList &texts)
    {
        QList<ORVTListview::ComboEntry> entries;
        for (const QString &text : texts)
            entries.append({.key = QStringLiteral("Key%1").arg(entries.size() + 1),
                            .text = text,
                            .image = 68,
                            .selectedImage = 68});
        return entries;
    }

    ORVTListview::ImageCombo *operator->() const { return combo; }
    QLineEdit &field() const { return *combo->lineEdit(); }

    QStringList listed() const
    {
        if (!combo->isListOpen())
            return {QStringLiteral("closed")};
        const QAbstractItemModel &model = *combo->listView()->model();
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts.append(model.index(row, 0).data().toString());
        return texts;
    }
    QString marked() const
    {
        return combo->isListOpen() ? combo->listView()->currentIndex().data().toString()
                                   : QStringLiteral("closed");
    }

    void key(Qt::Key which, Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::keyClick(window, which, held);
    }
    void type(const QString &text) const
    {
        for (const QChar c : text)
            QTest::keyClick(window, c.toLatin1());
    }

    // Of the arrow and of the middle of the field, in the form.
    QPoint arrow() const
    {
        return combo->mapTo(&form, QPoint(combo->width() - 8, combo->height() / 2));
    }
    QPoint inField() const
    {
        return combo->mapTo(&form, QPoint(combo->width() / 2, combo->height() / 2));
    }
    QPoint picture() const { return combo->mapTo(&form, QPoint(12, combo->height() / 2)); }

    // One step down, over the field; whether it was used.
    bool wheel() const
    {
        const QPointF at = combo->rect().center();
        QWheelEvent event(at, combo->mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(combo, &event);
        return event.isAccepted();
    }
    void click(QPoint at, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseClick(window, button, {}, at, betweenClicks());
    }
    // On a match of the open list.
    QPoint match(int position) const
    {
        const QListView &view = *combo->listView();
        return view.viewport()->mapTo(view.window(),
                                      view.visualRect(view.model()->index(position, 0)).center());
    }
    QWindow *listWindow() const { return combo->listView()->window()->windowHandle(); }

    static int betweenClicks()
    {
        return 1 + QGuiApplication::styleHints()->mouseDoubleClickInterval();
    }

    ORVTListview::ImageList images;
    QWidget form;
    QLineEdit *before;
    QPointer<ORVTListview::ImageCombo> combo;
    QLineEdit *after;
    QWindow *window = nullptr;
};
