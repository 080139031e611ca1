#pragma once

#include <ORVTListview/RichTextBox.h>

#include <QtCore/QPointer>
#include <QtCore/QRegularExpression>
#include <QtGui/QKeyEvent>
#include <QtTest/QTest>

// A box whose protected ways in can be called.
class OpenBox final : public ORVTListview::RichTextBox
{
public:
    using ORVTListview::RichTextBox::createMimeDataFromSelection;
    using ORVTListview::RichTextBox::insertFromMimeData;
};

// Whether the box takes the key from the shortcuts of its window.
inline bool takes(ORVTListview::RichTextBox &box, int key, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent event(QEvent::ShortcutOverride, key, modifiers);
    event.ignore();
    QCoreApplication::sendEvent(&box, &event);
    return event.isAccepted();
}

// Every test gets an empty box that is shown and has the focus.
class ShownBoxTest : public QObject
{
    Q_OBJECT

protected:
    QPointer<OpenBox> m_box;

private Q_SLOTS:
    virtual void init()
    {
        // The offscreen platform says what it cannot do.
        QTest::failOnWarning(
            QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
        m_box = new OpenBox;
        m_box->resize(400, 200);
        m_box->show();
        m_box->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_box));
        m_box->setFocus();
    }
    virtual void cleanup() { delete m_box; }
};
