#pragma once

#include "widgets/box/BoxLayers.h"

#include <QtCore/QMargins>
#include <QtCore/QPointer>
#include <QtWidgets/QFrame>

class QKeyEvent;
class QPlainTextEdit;

namespace ORVTListview {

// A strip at the bottom of an editor that asks the user for something. It takes its room
// from below the text, which stays where it is; one at a time is shown. No key and no
// click that it has no use for gets to the editor. Bars have a focus proxy.
class EditorBar : public QFrame
{
    Q_OBJECT

public:
    // In the language in force, those of an editor.
    static void initStrings(const QWidget &box);

    // The editor has the focus then if the bar had it.
    void close();

protected:
    // Around what a bar lays out, in pixels.
    static constexpr QMargins inside{6, 3, 6, 3};

    static bool isEnter(const QKeyEvent &key);

    // A child of the box.
    EditorBar(QPlainTextEdit &box, BoxLayers &layers);

    // To be called for each control that takes keys or has a tool tip.
    void watch(QWidget &control);

    void open();

    // To be called when it may have another height.
    void fit();

    virtual void showTexts() = 0;

    // Whether the key, besides Esc, is one that the bar acts on itself.
    virtual bool isOwnKey(const QKeyEvent &key) const = 0;
    virtual void act(const QKeyEvent &key) = 0;

    virtual void noteClosed();

    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void place();
    void fitPalette();
    void hideNow();
    void noteBox(QEvent::Type type);
    bool takesKey(const QEvent &event) const;

    QPlainTextEdit &m_box;
    const QPointer<BoxLayers> m_layers; // of the box
};

} // namespace ORVTListview
